#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>

#include <vector>

class FVMesh;

namespace TVR {

struct RunFrame;

/// Tables of cell values as comma-separated text: one line per cell with its number and its map
/// position, and one column per time step added to it.
namespace PointTable {

inline constexpr char temperatureFile[] = "xy_export_temperature.csv";
inline constexpr char drawdownFile[] = "xy_export_drawdown.csv";

/// The centres of the cells of a run with this frame on the map [m], row by row.
std::vector<QPointF> cellPositions(const FVMesh& mesh, const RunFrame& frame);

/// A table without values. A coordinate is cut to its first seven characters, which keeps the whole
/// metres of a national grid.
QByteArray tableOfPositions(const std::vector<QPointF>& positions);

/// The table with one more column, headed by the time in months (`time` in seconds); values keep
/// three significant digits. The table has a line for its heading and one for each value.
QByteArray withColumn(const QByteArray& table, double time, const std::vector<double>& values);

/// The same for a file. One that is there is replaced only if it is such a table. False, and the
/// file stays as it is, if it can't be read or written.
bool writePositions(const QString& fileName, const std::vector<QPointF>& positions);
bool addColumn(const QString& fileName, double time, const std::vector<double>& values);

} // namespace PointTable
} // namespace TVR
