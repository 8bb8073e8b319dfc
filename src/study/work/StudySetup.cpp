#include "study/work/StudySetup.h"

#include "inspection/FileInspection.h"
#include "study/work/BaseLayout.h"
#include "study/work/ExtremeRuns.h"
#include "study/work/RunInput.h"

#include <QFileInfo>

#include <exception>

namespace TVR::Study {

namespace {

/// Reads the base alone. False if it is at fault.
bool takeBase(const StudyFile& study, RunInput& input, Findings& findings) {
  const QString name = QFileInfo(study.base).fileName();
  FileInspection inspection = inspectFile(study.base);
  if (inspection.errors.isEmpty())
    inspection.errors = input.read({});
  for (const QString& line : inspection.errors)
    findings.errors << name + ": " + line;
  for (const QString& line : inspection.warnings + input.warnings())
    findings.warnings << name + ": " + line;
  return inspection.errors.isEmpty();
}

} // namespace

StudySetup setUpStudy(const QString& studyFile, Findings& findings) {
  StudySetup setup;
  setup.file = readStudyFile(studyFile, findings);
  if (!findings.errors.isEmpty())
    return setup;
  RunInput input(setup.file.base, {});
  if (!takeBase(setup.file, input, findings))
    return setup;
  setup.plan = makePlan(setup.file, digestOf(input.content()), findings);
  try {
    setup.layout = layoutOfBase(setup.file, setup.plan.keys, findings);
  } catch (const std::exception& error) {
    findings.errors << QStringLiteral("%1: %2").arg(QFileInfo(setup.file.base).fileName(),
                                                    QString(error.what()));
  }
  if (findings.errors.isEmpty())
    checkExtremes(setup.file, setup.plan, setup.layout, findings);
  return setup;
}

} // namespace TVR::Study
