#pragma once

#include <QStringList>

class QWidget;

/// What keeps people from using a window by keyboard, with a screen reader or with large letters.
/// Each check looks at what is visible of a window that is shown, and gives a line for each fault,
/// which names the widget; none if all is well.
namespace TVR::Test {

/// Inputs that have no name for assistive technology: no label as buddy, no text as buttons do, no
/// accessible name; lists, tables and trees need the latter.
QStringList unnamedInputs(QWidget& window);

/// The first place where Tab goes elsewhere than the eye: by rows from the top, each from the left,
/// and all of a group before what is beside or below it. Of a main window each part counts by
/// itself: tool bars, docks, what is in the middle.
QStringList tabOrderFaults(QWidget& window);

/// Mnemonics that two things of the window, or two entries of one of its menus, claim alike.
QStringList mnemonicFaults(QWidget& window);

/// Texts that their widget is too small for. One that a tool tip repeats in full may be cut.
QStringList clippedTexts(QWidget& window);

/// All of the above.
QStringList accessibilityFaults(QWidget& window);

} // namespace TVR::Test
