#include "verification/BatchRun.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <stdexcept>

namespace Verification {

WellTable::WellTable(const BatchProject& project) {
  const QTemporaryDir directory;
  const QString table = directory.filePath("site.out");
  const QString batchFile = directory.filePath("site.tbat");
  if (!project.write(batchFile) ||
      QProcess::execute(TEVRANE_BATCH_PROGRAM, {"--quiet", "--output", table, batchFile}) != 0)
    throw std::runtime_error("the driver made no table");
  QFile file(table);
  if (!file.open(QIODevice::ReadOnly))
    throw std::runtime_error("the table of the driver cannot be read");
  file.readLine(); // names of the columns
  while (!file.atEnd()) {
    const QList<QByteArray> line = file.readLine().trimmed().split('\t');
    times_.push_back(line.at(0).toDouble());
    std::vector<double>& row = temperatures_.emplace_back();
    for (int column = 2; column < line.size(); ++column)
      row.push_back(line.at(column).toDouble());
  }
}

double WellTable::temperature(std::size_t well, double t) const {
  const auto after = std::lower_bound(times_.begin() + 1, times_.end() - 1, t);
  const auto i = static_cast<std::size_t>(after - times_.begin());
  const double share = (t - times_[i - 1]) / (times_[i] - times_[i - 1]);
  return temperatures_[i - 1].at(well) +
         share * (temperatures_[i].at(well) - temperatures_[i - 1].at(well));
}

} // namespace Verification
