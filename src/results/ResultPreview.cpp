#include "results/ResultPreview.h"

#include "contour/CentreMesh.h"
#include "contour/IsolineTracing.h"
#include "results/CellsOnMap.h"

#include <utility>

namespace TVR {

using Sketra_lib::PreviewLine;
using Sketra_lib::Property::Drawdowns;
using Sketra_lib::Property::Temperature;

namespace {

/// The lines through one data set, without names and colours.
std::vector<PreviewLine> linesThrough(const Contour::CentreMesh& mesh, int dataSet,
                                      const std::vector<double>& values,
                                      const std::vector<double>& levels) {
  std::vector<PreviewLine> lines;
  for (Contour::Isoline& traced : Contour::traceIsolines(mesh, values, levels)) {
    PreviewLine line;
    line.dataSet = dataSet;
    line.level = traced.level;
    line.points = std::move(traced.points);
    line.breaks = std::move(traced.breaks);
    lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<PreviewLine> isotherms(const Contour::CentreMesh& mesh,
                                   const std::vector<double>& temperatures,
                                   const IsothermChoice& choice) {
  std::vector<double> levels;
  for (const QVariant& level : choice.levels)
    levels.push_back(level.toDouble());
  std::vector<PreviewLine> lines = linesThrough(mesh, Temperature, temperatures, levels);
  for (PreviewLine& line : lines) {
    const IsothermStyle style = isothermStyle(line.level, choice.changes);
    line.legend = isothermNames(line.level).legend;
    line.colour = style.colour;
    line.isDashed = style.isDashed;
    line.hasLabels = style.hasLabels;
  }
  return lines;
}

std::vector<PreviewLine> isohypses(const Contour::CentreMesh& mesh,
                                   const std::vector<double>& drawdowns) {
  std::vector<double> levels;
  for (const QString& level : isohypseLevels(drawdowns))
    levels.push_back(level.toDouble());
  std::vector<PreviewLine> lines = linesThrough(mesh, Drawdowns, drawdowns, levels);
  for (PreviewLine& line : lines) {
    line.legend = isohypseNames(line.level).legend;
    line.colour = Qt::black;
  }
  return lines;
}

} // namespace

Sketra_lib::ResultPreview resultPreview(const FVMesh& mesh, const RunFrame& frame,
                                        std::vector<double> drawdowns,
                                        std::vector<double> temperatures,
                                        const IsothermChoice& choice) {
  Contour::GridMesh grid = cellsOnMap(mesh, frame);
  Sketra_lib::ResultPreview preview;
  {
    const Contour::CentreMesh centres(grid);
    preview.lines = isohypses(centres, drawdowns);
    for (PreviewLine& line : isotherms(centres, temperatures, choice))
      preview.lines.push_back(std::move(line));
  }
  preview.nodes = std::move(grid.nodes);
  preview.cells = std::move(grid.cells);
  preview.centres = std::move(grid.centres);
  preview.drawdowns = std::move(drawdowns);
  preview.temperatures = std::move(temperatures);
  return preview;
}

} // namespace TVR
