#pragma once

#include <QStringList>

class QWidget;

namespace TVR::Page {
class Canvas;
}

/// What is left of a text of the pseudo language (PseudoTranslator) beside the brackets, numbers,
/// markup, and units and names that are the same in all languages: words without a translation.
QString leftInEnglish(const QString& text);

/// The texts that a window with all that it holds shows and that have such words, each with where
/// it stands: titles, labels, buttons, tips, names for screen readers, actions and menus, headers.
/// What the user types is not looked at.
QStringList untranslatedTexts(const QWidget& window);

/// The same for the texts, names and legends of all items of a page.
QStringList untranslatedTexts(const TVR::Page::Canvas& page);
