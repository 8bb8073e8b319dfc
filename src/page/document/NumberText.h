#pragma once

#include <QByteArray>
#include <QString>

#include <charconv>
#include <vector>

/// Numbers as the page document writes them: the shortest text that reads back as the same number,
/// with a point whatever the language of use, and blanks between the numbers of a list.
namespace TVR::Page {

/// `value` with its decimal point moved `places` to the right (lengths stand in the document as
/// tenths of the model's unit), in plain digits.
QString shiftedText(double value, int places);
/// The number of such a text. Shifting moves digits and computes nothing, so that what is written
/// is read back exactly. Nothing that is finite: `fallback`.
double shiftedNumber(const QString& text, int places, double fallback);

QString numberText(double value);

/// The numbers of a list, at most `most` of them; it ends at the first text that is no number.
template <typename Number>
std::vector<Number> numbersOf(const QString& text, qint64 most) {
  const QByteArray bytes = text.toLatin1();
  const char* place = bytes.constData();
  const char* const end = place + bytes.size();
  std::vector<Number> numbers;
  while (static_cast<qint64>(numbers.size()) < most) {
    while (place != end && (*place == ' ' || *place == '\n' || *place == '\t' || *place == '\r'))
      ++place;
    Number number{};
    const std::from_chars_result result = std::from_chars(place, end, number);
    if (result.ec != std::errc() && result.ec != std::errc::result_out_of_range)
      break;
    numbers.push_back(number);
    place = result.ptr;
  }
  return numbers;
}

/// Appends a number to a list.
template <typename Number>
void appendNumber(QByteArray& list, Number number) {
  char text[32];
  const std::to_chars_result result = std::to_chars(text, text + sizeof text, number);
  if (!list.isEmpty())
    list += ' ';
  list.append(text, static_cast<int>(result.ptr - text));
}

} // namespace TVR::Page
