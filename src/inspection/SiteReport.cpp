#include "inspection/SiteReport.h"

#include "files/BatchFile.h"
#include "inspection/FileInspection.h"
#include "project/ParameterTable.h"
#include "project/ProjectReader.h"
#include "simulation/SiteCheck.h"

#include <optional>

namespace TVR {

namespace {

/// Where a parameter, or else a table, stands in a file; empty if it has no key in a batch file.
QString placeInFile(const QString& fileName, std::optional<int> parameter, const QString& table) {
  if (isProjectFile(fileName))
    return parameter ? QString::fromLatin1(parameterRow(*parameter).key) : table;
  if (!parameter)
    return QStringLiteral("[installation] %1").arg(table);
  QString place;
  for (const Data::BatchFile::Key& key : Data::BatchFile::keys())
    if (key.id == *parameter && *key.name != '\0') // the last key of a parameter wins
      place = QStringLiteral("[%1] %2").arg(key.section, key.name);
  return place;
}

/// A value with its unit behind its place: "[hydraulic] kf (0.001 m/s)".
QString valueInFile(const QString& fileName, const QString& place, int id,
                    const ProjectReader& project) {
  const QString where = place.isEmpty() ? placeInFile(fileName, id, {}) : place;
  return QStringLiteral("%1 (%2 %3)").arg(where, project.text(id), parameterRow(id).unit);
}

} // namespace

SiteReport siteReport(const QString& fileName, const ProjectReader& project) {
  SiteReport report;
  for (const SiteProblem& problem : checkSite(project)) {
    QString place = placeInFile(fileName, problem.parameter, problem.table);
    if (place.isEmpty())
      place = ParameterName::label(*problem.parameter);
    (problem.isWarning ? report.warnings : report.errors) << place + ": " + problem.text;
  }
  return report;
}

QString likelyCauses(const QString& fileName, const SiteReport& report,
                     const ProjectReader& project) {
  const bool isUnconfined = project.flag(Parameter::AquiferUnconfined);
  const QStringList values{
      valueInFile(fileName, {},
                  isUnconfined ? Parameter::AquiferBasis : Parameter::AquiferThickness, project),
      valueInFile(fileName, {}, Parameter::HydraulicConductivity, project),
      valueInFile(fileName, "distance of the wells in " + placeInFile(fileName, {}, "well_model"),
                  Parameter::DMinUsed, project)};
  return "likely at fault: " + (report.warnings + QStringList{values.join(", ")}).join("; ");
}

} // namespace TVR
