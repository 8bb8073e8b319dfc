#include "project/ProjectReader.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "project/Units.h"

#include <algorithm>

namespace TVR {

using namespace Parameter;

QVariant ProjectReader::effective(int id) const {
  switch (id) {
  case EffectivePorosity:
  case AquiferPorosity:
    return porosity(id);
  case BackgroundImageOrigin: { // Required oddity: the y coordinate is not consulted.
    const QString x = stored(BackgroundImageX).toString();
    return QStringLiteral("[%1 %2]").arg(x, x);
  }
  case ViewOrigin:
    return QStringLiteral("[%1 %2]").arg(stored(ViewX).toString(), stored(ViewY).toString());
  case Isotherms:
    return QVariantList{1, 3, stored(AdditionalIsotherm)};
  case SpecificHeatDemand:
    return stored(id).toDouble() / megajoulesPerKilowattHour;
  case BuildingType:
  case ClosestLocation:
    return referenceText(id, wholeNumber(stored(id).toDouble()));
  case MaxElementLength: {
    const QVariant value = stored(id);
    const double length = value.toDouble();
    return length != 0 && length <= 1000 ? value
                                         : QVariant(stored(MinElementLength).toDouble() * 100);
  }
  default:
    return stored(id);
  }
}

/// The two porosities stand in for each other while one of them is empty.
QVariant ProjectReader::porosity(int id) const {
  const int other = id == AquiferPorosity ? EffectivePorosity : AquiferPorosity;
  const QVariant own = stored(id);
  const QVariant substitute = stored(other);
  if (own.toDouble() != 0 || substitute == QVariant(0.0))
    return own;
  if (id == AquiferPorosity)
    return substitute;
  const double p = substitute.toDouble();
  return p < 1.0 ? substitute : QVariant(p / 100);
}

int ProjectReader::count(int id) const {
  return wholeNumber(number(id));
}

std::vector<double> ProjectReader::periods() const {
  const ByPeriod& durations = enteredDurations();
  if (!durations.isEmpty())
    return {durations.begin(), durations.end()};
  const int periods = std::max(count(NumberOfDemandsPerYear), 1);
  return std::vector<double>(static_cast<std::size_t>(periods), secondsPerYear / periods);
}

QVariant ProjectOverlay::stored(int id) const {
  const auto value = values_.constFind(id);
  return value != values_.cend() ? *value : base_.stored(id);
}

} // namespace TVR
