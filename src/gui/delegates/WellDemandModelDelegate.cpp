#include "gui/delegates/WellDemandModelDelegate.h"

#include "project/ProjectTables.h"
#include "project/Units.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>

#include <bit>
#include <cstdint>

namespace TVR {

namespace {

// Required oddity: a month lasts one bit longer than 2630520 s, not a twelfth of a year.
constexpr double secondsPerShownMonth = 2630520.0000000005;
static_assert(std::bit_cast<std::uint64_t>(secondsPerShownMonth) == 0x414411BC00000001);

constexpr struct {
  const char* name;
  double seconds;
} timeUnits[] = {{QT_TRANSLATE_NOOP("WellDemandModel", "h"), secondsPerHour},
                 {QT_TRANSLATE_NOOP("WellDemandModel", "d"), secondsPerDay},
                 {QT_TRANSLATE_NOOP("WellDemandModel", "M"), secondsPerShownMonth}};

QString translated(const QString& unit) {
  return QCoreApplication::translate("WellDemandModel", unit.toUtf8().constData());
}

} // namespace

WellDemandModelDelegate::WellDemandModelDelegate(QObject* parent, QAbstractItemView* viewOfUnits)
    : QuantityDelegate(parent), view(viewOfUnits), timeUnitSeconds(secondsPerHour) {}

std::optional<CellQuantity> WellDemandModelDelegate::quantity(int column) const {
  switch (column) {
  case WellDemandColumns::Duration: {
    CellQuantity duration;
    duration.shown = [seconds = timeUnitSeconds](double value) { return value / seconds; };
    duration.stored = [seconds = timeUnitSeconds](double shown) { return shown * seconds; };
    duration.unit = timeUnit;
    duration.editorDecimals = 0;
    duration.minimum = 0.0;
    return duration;
  }
  case WellDemandColumns::Rate:
    return rateQuantity();
  case WellDemandColumns::TemperatureChange:
    return temperatureChangeQuantity();
  default:
    return {};
  }
}

void WellDemandModelDelegate::timeUnitChanged(bool checked) {
  if (!view || !checked)
    return;
  for (QAction* const action : view->actions()) {
    action->setChecked(action == sender());
    if (action == sender())
      timeUnit = translated(action->data().toString());
  }
  for (const auto& unit : timeUnits)
    if (timeUnit == translated(unit.name)) {
      timeUnitSeconds = unit.seconds;
      break;
    }
  view->viewport()->update();
}

} // namespace TVR
