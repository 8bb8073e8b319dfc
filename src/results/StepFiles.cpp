#include "results/StepFiles.h"

#include "design/ParameterId.h"
#include "project/ProjectReader.h"
#include "project/Units.h"

#include <cmath>

namespace TVR::StepFiles {

qlonglong wholeMonths(double time) {
  return std::llround(time / secondsPerMonth);
}

QString directory(const ProjectReader& project, const QString& namedTable,
                  const QString& workingDirectory) {
  if (!namedTable.isEmpty() || !project.text(Parameter::BatchOutputFile).isEmpty())
    return QStringLiteral("./");
  const QString named = project.text(Parameter::TecplotOutputFile);
  return named.isEmpty() ? workingDirectory : named;
}

} // namespace TVR::StepFiles
