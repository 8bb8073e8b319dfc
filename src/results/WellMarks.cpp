#include "results/WellMarks.h"

#include "host/PageProperty.h"
#include "messages/PluginText.h"
#include "messages/PrintableText.h"
#include "project/WellReader.h"

#include <algorithm>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

SymbolValue signOf(WellUse use) {
  switch (use) {
  case WellUse::Withdrawal:
    return WithdrawalWell;
  case WellUse::Injection:
    return InjectionWell;
  case WellUse::Alternating:
    return AlternatingWell;
  default:
    return NoSymbol;
  }
}

QString meaning(WellUse use) {
  switch (use) {
  case WellUse::Withdrawal:
    return PluginText::tr("Withdrawal wells");
  case WellUse::Injection:
    return PluginText::tr("Injection wells");
  case WellUse::Alternating:
    return PluginText::tr("Wells for both in turns");
  default:
    return {};
  }
}

} // namespace

WellUse wellUse(const WellReader& wells, int well, int periods) {
  bool withdraws = false;
  bool injects = false;
  for (int period = 0; period < std::max(1, periods); ++period) {
    const double rate = wells.rate(well, period);
    withdraws = withdraws || rate < 0;
    injects = injects || rate > 0;
  }
  if (withdraws && injects)
    return WellUse::Alternating;
  return withdraws ? WellUse::Withdrawal : injects ? WellUse::Injection : WellUse::Idle;
}

QVariantList wellMarks(const WellReader& wells, int periods) {
  QVariantList marks;
  for (int well = 0; well < wells.count(); ++well) {
    const WellUse use = wellUse(wells, well, periods);
    marks.append(QVariantMap{{"Text", printable(wells.name(well))},
                             {"Symbol", static_cast<int>(signOf(use))},
                             {"Legend", meaning(use)}});
  }
  return marks;
}

} // namespace TVR
