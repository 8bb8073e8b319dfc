#include "gui/positions/RateCheck.h"

#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QCoreApplication>

#include <cmath>

namespace TVR::GUI {

namespace {

constexpr double tolerance = 0.01;

struct Text {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::WellPositionAndUsageWizardPage)
};

void addTo(RateSums& sums, int step, const QAbstractItemModel& model, const QModelIndex& rate) {
  const double value = model.data(rate, Qt::EditRole).toDouble();
  if (model.data(rate, Qt::DisplayRole).toDouble() < 0.0)
    sums.pumping[step] += std::abs(value);
  else
    sums.injection[step] += value;
}

/// The messages of a sum that falls short of the design.
struct ShortfallTexts {
  QString ofYear;
  QString ofStep;
};

ShortfallTexts pumpingTexts() {
  return {Text::tr("There is a mismatch by %1 % between the required pumping rate and the sum of "
                   "the currently assigned pumping rates.<br>"),
          Text::tr("There is a mismatch by %1 % between the required pumping rate and the sum of "
                   "the currently assigned pumping rates of demand step %2.<br>")};
}

ShortfallTexts injectionTexts() {
  return {Text::tr("There is a mismatch by %1 % between the required injection rate and the sum of "
                   "the currently assigned injection rates.<br>"),
          Text::tr("There is a mismatch by %1 % between the required injection rate and the sum of "
                   "the currently assigned injection rates of demand step %2.<br>")};
}

class RateChecker {
public:
  RateChecker(const RateSums& sums, double required) : sums_(sums), required_(required) {}

  RateVerdict check() {
    for (auto step = sums_.injection.cbegin(); step != sums_.injection.cend(); ++step) {
      const double pumped = sums_.pumping.value(step.key(), 0.0);
      compare(step.key(), pumped, step.value());
      compareWithDesign(step.key(), pumped, pumpingTexts());
      compareWithDesign(step.key(), step.value(), injectionTexts());
    }
    return verdict_;
  }

private:
  bool isOneStep() const { return sums_.pumping.size() < 2; }

  void compare(int step, double pumped, double injected) {
    if (!(std::abs((pumped - injected) / injected) > tolerance))
      return;
    if (isOneStep())
      // Required oddity: the percentage is that of the injection against itself, always 0.
      verdict_.errors +=
          Text::tr("There is a mismatch by %1 % between the pumping and injection rate.<br>")
              .arg(0.0);
    else
      verdict_.errors += Text::tr("There is a mismatch between the pumping and injection rate of "
                                  "demand step %1.<br>")
                             .arg(step + 1);
  }

  void compareWithDesign(int step, double sum, const ShortfallTexts& texts) {
    const double difference = (std::abs(sum) - required_) / required_;
    if (std::abs(difference) > tolerance)
      verdict_.differsFromDesign = true;
    if (!(difference < -tolerance))
      return;
    const QString percent = QString::number(difference * 100.0, 'g');
    // Required oddity: a shortfall of one of several periods is a note, which refuses nothing.
    if (isOneStep())
      verdict_.errors += texts.ofYear.arg(percent);
    else
      verdict_.notes += texts.ofStep.arg(percent).arg(step + 1);
  }

  const RateSums& sums_;
  const double required_;
  RateVerdict verdict_;
};

} // namespace

RateSums rateSums(const WellModel& wells, const WellDemandModel& periods) {
  RateSums sums;
  if (wells.rowCount() == periods.rowCount()) {
    for (int row = 0; row < wells.rowCount(); ++row)
      addTo(sums, 0, wells, wells.index(row, WellModel::Rate));
    return sums;
  }
  for (int row = 0; row < periods.rowCount(); ++row)
    addTo(sums, periods.wellAndStep(row).step, periods, periods.index(row, WellDemandModel::Rate));
  return sums;
}

RateVerdict checkRates(const RateSums& sums, double required) {
  return RateChecker(sums, required).check();
}

} // namespace TVR::GUI
