#pragma once

#include <QString>

namespace TVR {

/// The copyright notices of the program and of what it is made of, as HTML.
QString copyrightNotices();

/// Rows of an HTML table: the plug-in's build, indented by `depth` steps, and one step deeper those
/// of the libraries in it.
QString buildRows(int depth);

} // namespace TVR
