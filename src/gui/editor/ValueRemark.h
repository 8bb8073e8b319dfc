#pragma once

#include <QString>

namespace TVR {
class ProjectReader;
}

namespace TVR::GUI {

struct EditorRow;

/// Why the value of a row in a project, typed or stored, makes no physical sense or deserves a
/// second look: a sentence in the language of the moment, empty for a usual value. It is held
/// against the range of its parameter, as files are, and the base of an unconfined aquifer against
/// the groundwater table. The number of wells also bears what is to be said of their places.
QString valueRemark(const EditorRow& row, const ProjectReader& project);

} // namespace TVR::GUI
