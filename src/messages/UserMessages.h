#pragma once

#include <QString>
#include <Qt>

namespace TVR {

/// The program's name as it stands in titles.
inline constexpr char programTitle[] = "Tevrane";

enum class Severity { Information, Warning, Critical };

/// Tells the user something: a message box where there is a screen, a line of the log where there
/// is none; see Messenger. Markup counts only in the rich format: names from files may hold some.
void tellUser(Severity severity, const QString& title, const QString& text,
              Qt::TextFormat format = Qt::PlainText);

/// Asks whether to go on, with the buttons Ok and Cancel. Where there is no screen nobody can
/// object: the question goes to the log, and the answer is yes.
bool userAgrees(const QString& title, const QString& text);

/// Asks whether to save, with the buttons Save and No; where there is no screen as `userAgrees`.
bool userSaves(const QString& title, const QString& text);

/// Warns of something, in rich text, with a proposal that mends it, and asks whether to take that:
/// the buttons are Save, which Enter takes, and Discard, which closing the question means too.
/// Where there is no screen it goes to the log, and nothing is taken.
bool userSavesProposal(const QString& title, const QString& richText);

/// Asks a question with the buttons Yes and No, of which No is the one that Enter takes; where
/// there is no screen it goes to the log, and the answer is no.
bool userSaysYes(Severity severity, const QString& title, const QString& text);

/// Asks a question with the buttons Ok and No, of which No is the one that Enter takes; where there
/// is no screen it goes to the log, and the answer is no.
bool userSaysOk(const QString& title, const QString& text);

/// What becomes of changes that are not saved.
enum class Unsaved { Save, Discard, Keep };

/// Asks what is to become of changes before they are lost, with the buttons Save, Discard and
/// Cancel; the last, which keeps them and calls off what would lose them, is also what closing the
/// question means. Where there is no screen it goes to the log, and they are discarded.
Unsaved userDecidesOnChanges(const QString& title, const QString& text);

/// Tells the user that something is done: a text with details below it, and a picture (the name of
/// a file or resource) beside it.
void tellUserDone(const QString& title, const QString& text, const QString& details,
                  const QString& picture);

} // namespace TVR
