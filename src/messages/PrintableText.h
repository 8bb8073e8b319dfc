#pragma once

#include <QString>

namespace TVR {

/// A text as one line without anything that a terminal, a shell or a reader of tables could take
/// for more than a letter: control characters, line breaks among them, marks that turn the
/// direction of writing, and what is no character and stands in no XML become their numbers, as
/// "\u001b".
QString printable(const QString& text);

} // namespace TVR
