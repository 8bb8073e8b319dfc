#pragma once

#include "tour/Visit.h"

namespace TVR::Test {

/// Goes through the whole program in a language ("de", "en", "fr"): the welcome window, a project
/// before and after its run, all menus, and every window and dialog that a command opens. A new
/// command is on the tour as soon as it is in a menu; a wizard is followed to the first page that
/// asks for something. Each dialog is called off. Needs a QApplication, and settings that nobody
/// minds.
///
/// `project` is a batch file whose run is short.
void tourOfWindows(const QString& language, const QString& project, const Visit& visit);

} // namespace TVR::Test
