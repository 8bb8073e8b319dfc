#include "results/WellMarks.h"

#include "data/WellModel.h"
#include "host/PageProperty.h"
#include "results/ResultText.h"

#include <algorithm>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

SymbolValue signOf(const WellModel& wells, int well, int periods) {
  bool withdraws = false;
  bool injects = false;
  for (int period = 0; period < std::max(1, periods); ++period) {
    const double rate = wells.stepRate(well, period, Qt::EditRole);
    withdraws = withdraws || rate < 0;
    injects = injects || rate > 0;
  }
  if (withdraws && injects)
    return AlternatingWell;
  return withdraws ? WithdrawalWell : injects ? InjectionWell : NoSymbol;
}

QString meaning(SymbolValue sign) {
  switch (sign) {
  case WithdrawalWell:
    return ResultText::tr("Withdrawal wells");
  case InjectionWell:
    return ResultText::tr("Injection wells");
  case AlternatingWell:
    return ResultText::tr("Wells for both in turns");
  default:
    return {};
  }
}

} // namespace

QVariantList wellMarks(const WellModel& wells, int periods) {
  QVariantList marks;
  for (int well = 0; well < wells.rowCount(); ++well) {
    const SymbolValue sign = signOf(wells, well, periods);
    marks.append(QVariantMap{{"Text", wells.index(well, WellModel::Name).data().toString()},
                             {"Symbol", static_cast<int>(sign)},
                             {"Legend", meaning(sign)}});
  }
  return marks;
}

} // namespace TVR
