#include "study/work/CsvCells.h"

#include "messages/PrintableText.h"
#include "study/plan/Plan.h"

#include <cmath>

namespace TVR::Study {

QString csvCell(const QString& text) {
  const QString plain = printable(text);
  if (!plain.contains(',') && !plain.contains('"'))
    return plain;
  return '"' + QString(plain).replace('"', "\"\"") + '"';
}

QString csvCell(double number) {
  return std::isfinite(number) ? exactText(number) : QString();
}

} // namespace TVR::Study
