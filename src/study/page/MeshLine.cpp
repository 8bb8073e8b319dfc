#include "study/page/MeshLine.h"

#include "study/page/BaseSite.h"
#include "study/page/PageNames.h"
#include "study/page/StudyPageText.h"

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

using Quantities::FigureConvergence;

/// A figure and its band, with two places of the band.
QString textOf(const FigureConvergence& figure, const BaseSite& base) {
  constexpr int mostDecimals = 4;
  const double band = figure.convergence.band;
  const int decimals =
      band > 0 ? std::clamp(1 - static_cast<int>(std::floor(std::log10(band))), 0, mostDecimals)
               : mostDecimals;
  return QStringLiteral("%1 %2 ± %3 %4")
      .arg(titleOf(figure.figure, base), QString::number(figure.convergence.value, 'f', decimals),
           QString::number(band, 'f', decimals), figure.unit);
}

} // namespace

QString meshLine(const BaseSite& base) {
  constexpr std::size_t mostFigures = 4;
  if (!base.mesh.fault.isEmpty())
    return StudyPageText::tr("Mesh of the base: it could not be judged: %1").arg(base.mesh.fault);
  std::vector<FigureConvergence> figures = base.mesh.convergence.figures;
  std::stable_sort(figures.begin(), figures.end(),
                   [](const FigureConvergence& one, const FigureConvergence& other) {
                     return one.convergence.band * other.tolerance >
                            other.convergence.band * one.tolerance;
                   });
  QString list;
  for (std::size_t i = 0; i < std::min(mostFigures, figures.size()); ++i) {
    const QString text = textOf(figures[i], base);
    list = i == 0 ? text : StudyPageText::tr("%1; %2").arg(list, text);
  }
  const QString cells = QString::number(base.mesh.convergence.cells[1]);
  const auto poor = std::count_if(figures.begin(), figures.end(),
                                  [](const FigureConvergence& one) { return !one.isGoodEnough(); });
  if (poor == 0)
    return StudyPageText::tr("Mesh of the base (%1 cells): %2; good enough").arg(cells, list);
  return StudyPageText::tr("Mesh of the base (%1 cells): %2; not good enough for %3 of %4 figures")
      .arg(cells, list, QString::number(poor), QString::number(figures.size()));
}

} // namespace TVR::Study
