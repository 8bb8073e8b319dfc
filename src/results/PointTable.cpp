#include "results/PointTable.h"

#include "disk/FileReplacement.h"
#include "project/RunFrame.h"
#include "results/StepFiles.h"
#include "simulator/mesh/FVMesh.h"

#include <QFile>
#include <QFileInfo>
#include <QVariant>

namespace TVR::PointTable {

namespace {

/// Required oddity: the metres of a national grid fit in, and no digit more.
constexpr int coordinateLength = 7;
constexpr char heading[] = "Element,X,Y";

bool holdsSomethingElse(const QString& fileName) {
  const QFileInfo info(fileName);
  QFile file(fileName);
  return info.exists() && (!info.isFile() || !file.open(QIODevice::ReadOnly) ||
                           !file.readLine().startsWith(heading));
}

QByteArray coordinate(double value) {
  return QVariant(value).toString().left(coordinateLength).toLatin1();
}

} // namespace

std::vector<QPointF> cellPositions(const FVMesh& mesh, const RunFrame& frame) {
  std::vector<QPointF> positions;
  positions.reserve(mesh.elements.size());
  for (std::size_t row = 0; row < mesh.yLine.count(); ++row)
    for (std::size_t column = 0; column < mesh.xLine.count(); ++column)
      positions.push_back(frame.onMap({mesh.xLine.centre(column), mesh.yLine.centre(row)}));
  return positions;
}

QByteArray tableOfPositions(const std::vector<QPointF>& positions) {
  QByteArray table = heading + QByteArray("\n");
  int element = 0;
  for (const QPointF& position : positions)
    table += QByteArray::number(element++) + ',' + coordinate(position.x()) + ',' +
             coordinate(position.y()) + '\n';
  return table;
}

QByteArray withColumn(const QByteArray& table, double time, const std::vector<double>& values) {
  const QList<QByteArray> lines = table.split('\n');
  QByteArray result =
      lines.value(0) + ",T=" + QByteArray::number(StepFiles::wholeMonths(time)) + "_month\n";
  for (std::size_t k = 0; k < values.size(); ++k)
    result += lines.value(static_cast<int>(k) + 1) + ',' +
              QByteArray::number(static_cast<float>(values[k]), 'g', 3) + '\n';
  return result;
}

bool writePositions(const QString& fileName, const std::vector<QPointF>& positions) {
  return !holdsSomethingElse(fileName) && replaceFile(fileName, tableOfPositions(positions));
}

bool addColumn(const QString& fileName, double time, const std::vector<double>& values) {
  QFile file(fileName);
  if (holdsSomethingElse(fileName) || !file.open(QIODevice::ReadOnly))
    return false;
  const QByteArray table = file.readAll();
  file.close();
  return replaceFile(fileName, withColumn(table, time, values));
}

} // namespace TVR::PointTable
