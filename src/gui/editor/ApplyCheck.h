#pragma once

#include <QString>

namespace TVR {
class ProjectReader;
}

namespace TVR::GUI {

/// Whether a project, with what was typed but not applied yet, may be run.
struct ApplyVerdict {
  bool isAllowed = false;
  QString message; ///< for the user, as markup; empty if there is nothing to say
};

/// Designs the site for the rate of its largest well: each well needs a place of its own, and what
/// the design formulas give has to be positive. Changes nothing.
ApplyVerdict checkApply(const ProjectReader& project);

} // namespace TVR::GUI
