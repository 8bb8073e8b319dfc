#pragma once

#include <QByteArray>
#include <QString>

class QDomDocument;

namespace TVR {

/// The characters of a text that XML can hold: no other control characters than blanks, and no
/// halves of pairs.
QString xmlText(const QString& text);

/// A document as UTF-8, indented by one blank. The same tree gives the same bytes in every process:
/// attributes stand in a fixed order. Characters that XML can't hold are left out.
QByteArray xmlBytes(const QDomDocument& document);

} // namespace TVR
