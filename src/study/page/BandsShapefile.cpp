#include "study/page/BandsShapefile.h"

#include "results/ShapefileHandles.h"
#include "results/ShapefileSet.h"
#include "study/page/PlumeBands.h"

#include <QFile>

namespace TVR::Study {

namespace {

enum Column { LevelColumn, TimeColumn, ProbabilityColumn, BandColumn };

bool addColumns(DBFHandle table) {
  constexpr int width = 12;
  constexpr int decimals = 4;
  return DBFAddField(table, "level_K", FTDouble, width, decimals) == LevelColumn &&
         DBFAddField(table, "time_a", FTDouble, width, decimals) == TimeColumn &&
         DBFAddField(table, "probabilit", FTDouble, width, decimals) == ProbabilityColumn &&
         DBFAddField(table, "band", FTString, 3, 0) == BandColumn;
}

bool writeRow(DBFHandle table, int row, const PlumeBand& band) {
  return DBFWriteDoubleAttribute(table, row, LevelColumn, band.level) &&
         DBFWriteDoubleAttribute(table, row, TimeColumn, band.time) &&
         DBFWriteDoubleAttribute(table, row, ProbabilityColumn, band.probability) &&
         DBFWriteStringAttribute(table, row, BandColumn, band.name.toLatin1());
}

bool writePolygon(SHPHandle shapes, const PlumeBand& band) {
  std::vector<int> starts;
  std::vector<double> x;
  std::vector<double> y;
  for (const QPolygonF& ring : band.rings) {
    starts.push_back(static_cast<int>(x.size()));
    for (const QPointF& point : ring) {
      x.push_back(point.x());
      y.push_back(point.y());
    }
  }
  const ShapeRecord polygon(SHPCreateObject(SHPT_POLYGON, -1, static_cast<int>(starts.size()),
                                            starts.data(), nullptr, static_cast<int>(x.size()),
                                            x.data(), y.data(), nullptr, nullptr),
                            &SHPDestroyObject);
  SHPRewindObject(shapes, polygon.get()); // rings around the area go clockwise, others do not
  return SHPWriteObject(shapes, -1, polygon.get()) >= 0;
}

bool writeFiles(const QByteArray& name, const std::vector<PlumeBand>& bands) {
  const DecimalPoint decimalPoint;
  const ShapeTable table(DBFCreate(name), &DBFClose);
  const ShapeFile shapes(SHPCreate(name, SHPT_POLYGON), &SHPClose);
  if (!table || !shapes || !addColumns(table.get()))
    return false;
  int row = 0;
  for (const PlumeBand& band : bands)
    if (!writePolygon(shapes.get(), band) || !writeRow(table.get(), row++, band))
      return false;
  return true;
}

} // namespace

bool writeBandsShapefile(const QString& fileName, const std::vector<PlumeBand>& bands) {
  ShapefileSet files(fileName);
  return files.isPossible() && writeFiles(QFile::encodeName(files.aside()), bands) &&
         files.commit();
}

} // namespace TVR::Study
