#include "study/plan/ResultLayout.h"

#include "study/plan/JsonNumbers.h"

#include <QCryptographicHash>
#include <QJsonArray>

#include <iterator>
#include <utility>

namespace TVR::Study {

namespace {

struct QuantityRow {
  const char* name;
  QuantityKind kind;
};

constexpr QuantityRow quantityRows[] = {
    {"plume_length", QuantityKind::Extent},
    {"plume_width", QuantityKind::Extent},
    {"plume_area", QuantityKind::Area},
    {"drawdown_max", QuantityKind::Drawdown},
    {"drawdown", QuantityKind::Drawdown},
    {"temperature", QuantityKind::Temperature},
    {"temperature_min", QuantityKind::Temperature},
    {"temperature_max", QuantityKind::Temperature},
};
static_assert(std::size(quantityRows) == static_cast<std::size_t>(Quantity::TemperatureMax) + 1);

const QuantityRow& rowOf(Quantity quantity) {
  return quantityRows[static_cast<std::size_t>(quantity)];
}

QStringList textsFrom(const QJsonValue& json) {
  QStringList texts;
  for (const auto& text : json.toArray())
    texts << text.toString();
  return texts;
}

/// The scalars of a layout that are wanted, one after the other.
class ScalarList {
public:
  explicit ScalarList(const ResultLayout& layout) : layout_(layout) {}

  std::vector<Scalar> make() {
    for (std::size_t time = 0; time < layout_.times.size(); ++time) {
      addLevels(Quantity::PlumeLength, time);
      addLevels(Quantity::PlumeWidth, time);
      addLevels(Quantity::PlumeArea, time);
      add({Quantity::DrawdownMax, {}, {}, time});
      addWells(Quantity::Drawdown, time);
      addWells(Quantity::Temperature, time);
    }
    addWells(Quantity::TemperatureMin, {});
    addWells(Quantity::TemperatureMax, {});
    if (layout_.meshBands)
      addBands();
    return std::move(scalars_);
  }

private:
  void addLevels(Quantity quantity, std::size_t time) {
    for (std::size_t level = 0; level < layout_.levels.size(); ++level)
      add({quantity, {}, level, time});
  }
  void addWells(Quantity quantity, std::optional<std::size_t> time) {
    for (std::size_t well = 0; well < static_cast<std::size_t>(layout_.wells.size()); ++well)
      add({quantity, well, {}, time});
  }
  void add(const Scalar& scalar) {
    if (layout_.quantities.contains(nameOf(scalar.quantity)))
      scalars_.push_back(scalar);
  }

  void addBands() {
    for (std::size_t i = 0, count = scalars_.size(); i < count; ++i) {
      scalars_.push_back(scalars_[i]);
      scalars_.back().isMeshBand = true;
    }
  }

  const ResultLayout& layout_;
  std::vector<Scalar> scalars_;
};

} // namespace

QString nameOf(Quantity quantity) {
  return QString::fromLatin1(rowOf(quantity).name);
}

QuantityKind kindOf(Quantity quantity) {
  return rowOf(quantity).kind;
}

QString unitOf(Quantity quantity) {
  switch (kindOf(quantity)) {
  case QuantityKind::Area:
    return QStringLiteral("m²");
  case QuantityKind::Temperature:
    return QStringLiteral("°C");
  case QuantityKind::Extent:
  case QuantityKind::Drawdown:
    break;
  }
  return QStringLiteral("m");
}

QString nameOf(const Scalar& scalar) {
  const QString name = nameOf(scalar.quantity);
  return scalar.isMeshBand ? name + "_mesh_band" : name;
}

QString unitOf(const Scalar& scalar) {
  const bool isDifference =
      scalar.isMeshBand && kindOf(scalar.quantity) == QuantityKind::Temperature;
  return isDifference ? QStringLiteral("K") : unitOf(scalar.quantity);
}

const QStringList& quantityNames() {
  static const QStringList names = [] {
    QStringList result;
    for (const QuantityRow& row : quantityRows)
      result << row.name;
    return result;
  }();
  return names;
}

std::vector<Scalar> ResultLayout::scalars() const {
  return ScalarList(*this).make();
}

QString ResultLayout::title(const Scalar& scalar) const {
  QStringList parts{nameOf(scalar)};
  if (scalar.well)
    parts << wells[static_cast<int>(*scalar.well)];
  if (scalar.level)
    parts << QString::number(levels[*scalar.level]) + " K";
  if (scalar.time)
    parts << QString::number(times[*scalar.time]) + " a";
  return QStringLiteral("%1 [%2]").arg(parts.join(' '), unitOf(scalar));
}

std::vector<Series> ResultLayout::series() const {
  std::vector<Series> result;
  for (const Quantity quantity : {Quantity::Temperature, Quantity::Drawdown})
    for (std::size_t well = 0; well < static_cast<std::size_t>(wells.size()); ++well)
      result.push_back({quantity, well});
  return result;
}

QJsonObject toJson(const ResultLayout& layout) {
  const Raster& raster = layout.raster;
  QJsonObject json{{"keys", QJsonArray::fromStringList(layout.keys)},
                   {"key_units", QJsonArray::fromStringList(layout.keyUnits)},
                   {"wells", QJsonArray::fromStringList(layout.wells)},
                   {"quantities", QJsonArray::fromStringList(layout.quantities)},
                   {"times_a", jsonOf(layout.times)},
                   {"levels_K", jsonOf(layout.levels)},
                   {"series_times_a", jsonOf(layout.seriesTimes)},
                   {"raster", QJsonObject{{"left_m", raster.left},
                                          {"bottom_m", raster.bottom},
                                          {"cell_m", raster.cell},
                                          {"columns", raster.columns},
                                          {"rows", raster.rows}}}};
  if (layout.meshBands)
    json["mesh_bands"] = true;
  return json;
}

std::optional<ResultLayout> layoutFromJson(const QJsonObject& json) {
  const QJsonObject raster = json["raster"].toObject();
  if (raster.isEmpty())
    return {};
  return ResultLayout{textsFrom(json["keys"]),
                      textsFrom(json["key_units"]),
                      textsFrom(json["wells"]),
                      textsFrom(json["quantities"]),
                      numbersFrom(json["times_a"]),
                      numbersFrom(json["levels_K"]),
                      numbersFrom(json["series_times_a"]),
                      {raster["left_m"].toDouble(), raster["bottom_m"].toDouble(),
                       raster["cell_m"].toDouble(), raster["columns"].toInt(),
                       raster["rows"].toInt()},
                      json["mesh_bands"].toBool()};
}

QByteArray idOf(const ResultLayout& layout) {
  return QCryptographicHash::hash(compactJson(toJson(layout)), QCryptographicHash::Sha256)
      .toHex()
      .left(16);
}

} // namespace TVR::Study
