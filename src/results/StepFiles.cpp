#include "results/StepFiles.h"

#include "design/ParameterId.h"
#include "project/TimeUnits.h"
#include "store/Manager.h"

#include <cmath>

namespace TVR::StepFiles {

qlonglong wholeMonths(double time) {
  return std::llround(time / secondsPerMonth);
}

QString directory(const Data::Manager& store, const QString& workingDirectory) {
  if (!store.value(Parameter::BatchOutputFile).toString().isEmpty())
    return QStringLiteral("./");
  const QString named = store.value(Parameter::TecplotOutputFile).toString();
  return named.isEmpty() ? workingDirectory : named;
}

} // namespace TVR::StepFiles
