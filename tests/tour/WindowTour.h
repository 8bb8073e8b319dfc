#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace TVR::Test {

/// What is done at each window of a tour: its name, which says how one comes to it, and the window,
/// which is shown and closed afterwards.
using Visit = std::function<void(const QString& name, QWidget& window)>;

/// Goes through the whole program in a language ("de", "en", "fr"): the welcome window, a project
/// before and after its run, all menus, and every window and dialog that a command opens. A new
/// command is on the tour as soon as it is in a menu; of a wizard each page is visited. Each dialog
/// is called off. Needs a QApplication, and settings that nobody minds.
///
/// `project` is a batch file whose run is short.
void tourOfWindows(const QString& language, const QString& project, const Visit& visit);

} // namespace TVR::Test
