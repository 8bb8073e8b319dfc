#include "plugin/StepExport.h"

#include "plugin/ResultGraphic.h"
#include "results/PointTable.h"
#include "results/ShapefileExport.h"
#include "simulation/Simulation.h"

namespace TVR {

void StepExport::note(bool isWritten, const QString& file) {
  if (!isWritten && !unwrittenFiles_.contains(file))
    unwrittenFiles_ << file;
}

void StepExport::beginTables(const FVMesh& mesh) {
  // Required oddity: the direction turns the tables also where no groundwater flows.
  RunFrame frame = graphic_.frame();
  frame.hasRegionalFlow = true;
  const auto positions = PointTable::cellPositions(mesh, frame);
  for (const char* name : {PointTable::temperatureFile, PointTable::drawdownFile}) {
    const QString file = directory_() + '/' + name;
    note(PointTable::writePositions(file, positions), file);
  }
}

void StepExport::continueTables(const Simulation& simulation, double time) {
  const QString temperatures = directory_() + '/' + PointTable::temperatureFile;
  const QString drawdowns = directory_() + '/' + PointTable::drawdownFile;
  std::vector<double> values(simulation.mesh().elements.size());
  simulation.getTemperatures(values);
  note(PointTable::addColumn(temperatures, time, values), temperatures);
  simulation.getDrawdowns(values);
  note(PointTable::addColumn(drawdowns, time, values), drawdowns);
}

void StepExport::writeIsolines(double time) {
  const QString directory = directory_();
  note(ShapefileExport(graphic_.access()).writeStep(time, directory),
       ShapefileExport::stepFile(time, directory));
}

} // namespace TVR
