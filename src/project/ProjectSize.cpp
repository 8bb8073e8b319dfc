#include "project/ProjectSize.h"

#include "project/Project.h"

#include <QPointF>

namespace TVR {

namespace {

constexpr qint64 block = 24; ///< what an allocation takes beside its contents [bytes]

qint64 textBytes(const QString& text) {
  return block + qint64{2} * text.capacity();
}

bool sharesText(const QString& one, const QString& other) {
  return one.isEmpty() || one.constData() == other.constData();
}

qint64 contentBytes(const QVariant& value, const QVariant& other) {
  if (value.userType() == QMetaType::QString)
    return sharesText(value.toString(), other.toString()) ? 0 : textBytes(value.toString());
  if (value.userType() == QMetaType::QPointF)
    return block + qint64{sizeof(QPointF)};
  return 0; // numbers lie within the variant
}
qint64 contentBytes(const QString& text, const QString& other) {
  return sharesText(text, other) ? 0 : textBytes(text);
}
qint64 contentBytes(double, double) {
  return 0;
}

template <typename Value>
qint64 mapBytes(const QMap<int, Value>& map, const QMap<int, Value>& other);

qint64 contentBytes(const ByPeriod& entries, const ByPeriod& other) {
  return mapBytes(entries, other);
}

template <typename Value>
qint64 mapBytes(const QMap<int, Value>& map, const QMap<int, Value>& other) {
  if (map.isEmpty() || map.isSharedWith(other))
    return 0;
  qint64 bytes = block + map.size() * (block + qint64{sizeof(QMapNode<int, Value>)});
  for (auto entry = map.begin(); entry != map.end(); ++entry)
    bytes += contentBytes(entry.value(), other.value(entry.key()));
  return bytes;
}

qint64 setBytes(const QSet<int>& rows, const QSet<int>& other) {
  if (rows.isEmpty() || (!other.isEmpty() && &*rows.begin() == &*other.begin()))
    return 0;
  return block + rows.capacity() * qint64{sizeof(void*)} +
         rows.size() * (block + qint64{2 * sizeof(void*)});
}

qint64 wellBytes(const Wells& wells, const Wells& other) {
  qint64 bytes = 0;
  if (!wells.positions.isSharedWith(other.positions))
    bytes += block + wells.positions.capacity() * qint64{sizeof(QPointF)};
  return bytes + setBytes(wells.givenPlaces, other.givenPlaces) +
         mapBytes(wells.names, other.names) + mapBytes(wells.rates, other.rates) +
         mapBytes(wells.temperatureChanges, other.temperatureChanges) +
         mapBytes(wells.periodRates, other.periodRates) +
         mapBytes(wells.periodTemperatureChanges, other.periodTemperatureChanges);
}

} // namespace

qint64 bytesBeside(const Project& project, const Project& other) {
  return qint64{sizeof(Project)} + mapBytes(project.values, other.values) +
         wellBytes(project.wells, other.wells) + mapBytes(project.durations, other.durations);
}

} // namespace TVR
