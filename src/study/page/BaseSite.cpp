#include "study/page/BaseSite.h"

#include "design/ParameterId.h"
#include "disk/FileReplacement.h"
#include "results/WellMarks.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteSetup.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/StudyFolder.h"
#include "study/work/StudySetup.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <exception>

namespace TVR::Study {

namespace {

using Quantities::FigureConvergence;

std::vector<BaseWell> wellsOf(const ProjectReader& project) {
  const WellReader wells = project.wells();
  const int periods = project.count(Parameter::NumberOfDemandsPerYear);
  const QVariantList marks = wellMarks(wells, periods);
  std::vector<BaseWell> result;
  for (int row = 0; row < wells.count(); ++row) {
    const QVariantMap mark = marks[row].toMap();
    const WellUse use = wellUse(wells, row, periods);
    result.push_back({mark["Text"].toString(), wells.place(row),
                      use == WellUse::Withdrawal || use == WellUse::Alternating,
                      mark["Symbol"].toInt(), mark["Legend"].toString()});
  }
  return result;
}

QString computedMeshLine(const ProjectReader& project, const SiteInput& site) {
  QStringList names;
  for (const SiteWell& well : site.wells)
    names << well.name;
  try {
    return meshLine(Quantities::meshConvergence(
        site, outputTimes(outputTimeInput(project, usualCycleLength)), names));
  } catch (const std::exception& error) {
    return QStringLiteral("Mesh of the base: it could not be judged: %1").arg(error.what());
  }
}

/// The line that an earlier page left behind; empty if there is none for the base and this version.
QString keptMeshLine(const QString& fileName, const QString& base) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return {};
  const QJsonObject kept = QJsonDocument::fromJson(file.readAll()).object();
  const bool isFit = kept["base"].toString() == base && kept["version"] == TEVRANE_VERSION;
  return isFit ? kept["text"].toString() : QString();
}

/// A figure and its band, with two places of the band.
QString textOf(const FigureConvergence& figure) {
  constexpr int mostDecimals = 4;
  const double band = figure.convergence.band;
  const int decimals =
      band > 0 ? std::clamp(1 - static_cast<int>(std::floor(std::log10(band))), 0, mostDecimals)
               : mostDecimals;
  return QStringLiteral("%1 %2 ± %3 %4")
      .arg(figure.name, QString::number(figure.convergence.value, 'f', decimals),
           QString::number(band, 'f', decimals), figure.unit);
}

} // namespace

QString meshLine(const Quantities::MeshConvergence& convergence) {
  constexpr std::size_t mostFigures = 4;
  std::vector<FigureConvergence> figures = convergence.figures;
  std::stable_sort(figures.begin(), figures.end(),
                   [](const FigureConvergence& one, const FigureConvergence& other) {
                     return one.convergence.band * other.tolerance >
                            other.convergence.band * one.tolerance;
                   });
  QStringList texts;
  for (std::size_t i = 0; i < std::min(mostFigures, figures.size()); ++i)
    texts << textOf(figures[i]);
  const auto poor = std::count_if(figures.begin(), figures.end(),
                                  [](const FigureConvergence& one) { return !one.isGoodEnough(); });
  const QString verdict =
      poor == 0
          ? QStringLiteral("good enough")
          : QStringLiteral("not good enough for %1 of %2 figures").arg(poor).arg(figures.size());
  return QStringLiteral("Mesh of the base (%1 cells): %2; %3")
      .arg(QString::number(convergence.cells[1]), texts.join("; "), verdict);
}

BaseSite baseSite(const StudySetup& study, const StudyFolder& folder) {
  const QString kept = folder.base(study.file.base);
  RunInput input(QFile::exists(kept) ? kept : study.file.base, {});
  input.read({});
  const Data::Manager& store = *Data::Manager::instance();
  BaseSite result;
  result.wells = wellsOf(store);
  const QString digest = digestOf(input.content()).toHex();
  result.mesh = keptMeshLine(folder.mesh(), digest);
  if (!result.mesh.isEmpty())
    return result;
  result.mesh = computedMeshLine(store, readSite(store));
  const QJsonObject line{{"base", digest}, {"version", TEVRANE_VERSION}, {"text", result.mesh}};
  replaceFile(folder.mesh(), QJsonDocument(line).toJson()); // without it the next page takes longer
  return result;
}

} // namespace TVR::Study
