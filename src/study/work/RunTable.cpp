#include "study/work/RunTable.h"

#include "messages/PrintableText.h"
#include "study/plan/Plan.h"

#include <cmath>

namespace TVR::Study {

namespace {

QString cell(const QString& text) {
  const QString plain = printable(text);
  if (!plain.contains(',') && !plain.contains('"'))
    return plain;
  return '"' + QString(plain).replace('"', "\"\"") + '"';
}

QString cell(double number) {
  return std::isfinite(number) ? exactText(number) : QString();
}

void writeLine(QIODevice& device, const QStringList& cells) {
  device.write(cells.join(',').toUtf8() + '\n');
}

} // namespace

void writeTableHead(QIODevice& device, const ResultLayout& layout) {
  QStringList cells{"run", "repeats", "outcome"};
  for (int i = 0; i < layout.keys.size(); ++i)
    cells << cell(QStringLiteral("%1 [%2]").arg(layout.keys[i], layout.keyUnits[i]));
  for (const Scalar& scalar : layout.scalars())
    cells << cell(layout.title(scalar));
  writeLine(device, cells << "reason");
}

void writeTableRow(QIODevice& device, const Record& record, const ResultLayout& layout) {
  QStringList cells{QString::fromLatin1(record.run), QString::number(record.repeats),
                    record.hasFailed() ? "failed" : "done"};
  for (const double value : record.values)
    cells << cell(value);
  for (std::size_t i = 0; i < layout.scalars().size(); ++i)
    cells << (record.hasFailed() ? QString() : cell(record.scalars[i]));
  writeLine(device, cells << cell(record.failure));
}

} // namespace TVR::Study
