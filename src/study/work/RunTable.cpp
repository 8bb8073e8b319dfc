#include "study/work/RunTable.h"

#include "study/work/CsvCells.h"

namespace TVR::Study {

namespace {

void writeLine(QIODevice& device, const QStringList& cells) {
  device.write(cells.join(',').toUtf8() + '\n');
}

} // namespace

void writeTableHead(QIODevice& device, const ResultLayout& layout) {
  QStringList cells{"run", "repeats", "outcome"};
  for (int i = 0; i < layout.keys.size(); ++i)
    cells << csvCell(QStringLiteral("%1 [%2]").arg(layout.keys[i], layout.keyUnits[i]));
  for (const Scalar& scalar : layout.scalars())
    cells << csvCell(layout.title(scalar));
  writeLine(device, cells << "reason");
}

void writeTableRow(QIODevice& device, const Record& record, const ResultLayout& layout) {
  QStringList cells{QString::fromLatin1(record.run), QString::number(record.repeats),
                    record.hasFailed() ? "failed" : "done"};
  for (const double value : record.values)
    cells << csvCell(value);
  for (std::size_t i = 0; i < layout.scalars().size(); ++i)
    cells << (record.hasFailed() ? QString() : csvCell(record.scalars[i]));
  writeLine(device, cells << csvCell(record.failure));
}

} // namespace TVR::Study
