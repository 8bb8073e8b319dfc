#include "messages/PrintableText.h"

namespace TVR {

QString printable(const QString& text) {
  QString result;
  for (const QChar character : text) {
    const QChar::Category category = character.category();
    const bool isCommand = category == QChar::Other_Control || category == QChar::Other_Format ||
                           category == QChar::Separator_Line ||
                           category == QChar::Separator_Paragraph || character.isNonCharacter();
    result += isCommand ? QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QChar('0'))
                        : QString(character);
  }
  return result;
}

} // namespace TVR
