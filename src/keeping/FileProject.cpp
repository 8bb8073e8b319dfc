#include "keeping/FileProject.h"

#include "design/ParameterId.h"
#include "files/ProjectFile.h"
#include "project/ProjectTarget.h"
#include "project/Units.h"

namespace TVR {

namespace {

/// A project that takes what a file holds.
class ReadProject final : public ProjectTarget {
public:
  const Project& project() const { return project_; }

  QVariant stored(int id) const override { return project_.values.value(id); }
  const Wells& enteredWells() const override { return project_.wells; }
  const ByPeriod& enteredDurations() const override { return project_.durations; }
  bool setValue(int id, QVariant value) override {
    setStored(id, value);
    return value.isValid();
  }
  void setStored(int id, const QVariant& value) override { project_.values[id] = value; }
  const ParameterKeys& keys() const override { return keys_; }

  int makeTable(ProjectTable table) override {
    if (table != ProjectTable::Demand)
      project_.wells.resizePositions(wells().count(), {});
    if (table != ProjectTable::Well && project_.durations.isEmpty())
      resizePeriods(static_cast<int>(periods().size()));
    return rowsOf(*this, table);
  }
  void setCells(ProjectTable table, const std::vector<TableCell>& cells) override {
    const int rows = makeTable(table);
    for (const TableCell& cell : cells)
      if (cell.row >= 0 && cell.row < rows)
        setCell(table, cell);
  }
  void resizePeriods(int count) override {
    project_.durations.clear();
    for (int period = 0; period < count; ++period)
      project_.durations[period] = secondsPerYear / count;
  }
  void giveAllPlaces() override {
    for (int row = 0; row < project_.wells.positions.size(); ++row)
      project_.wells.givenPlaces.insert(row);
  }
  void clearWellEntries() override { project_.wells.clearEntries(); }
  void setResultFrame(const RunFrame& /*frame*/) override {}
  void takePage(const QByteArray& /*document*/) override {}

private:
  void setCell(ProjectTable table, const TableCell& cell) {
    switch (table) {
    case ProjectTable::Demand:
      project_.durations[cell.row] = cell.value.toDouble();
      break;
    case ProjectTable::Well:
      setWellCell(cell);
      break;
    case ProjectTable::WellDemand:
      setPeriodCell(cell);
      break;
    }
  }

  void setWellCell(const TableCell& cell) {
    Wells& wells = project_.wells;
    const double number = cell.value.toDouble();
    switch (cell.column) {
    case WellColumns::Name:
      wells.names[cell.row] = cell.value.toString();
      break;
    case WellColumns::X:
      wells.positions[cell.row].setX(number);
      wells.givenPlaces.insert(cell.row);
      break;
    case WellColumns::Y:
      wells.positions[cell.row].setY(number);
      wells.givenPlaces.insert(cell.row);
      break;
    case WellColumns::Rate:
      wells.rates[cell.row] = number;
      break;
    case WellColumns::TemperatureChange:
      wells.temperatureChanges[cell.row] = number;
      break;
    default:
      break;
    }
  }

  void setPeriodCell(const TableCell& cell) {
    const int periods = project_.durations.size();
    const int well = cell.row / periods;
    const int period = cell.row % periods;
    if (cell.column == WellDemandColumns::Rate)
      project_.wells.periodRates[well][period] = cell.value.toDouble();
    else if (cell.column == WellDemandColumns::TemperatureChange)
      project_.wells.periodTemperatureChanges[well][period] = cell.value.toDouble();
  }

  Project project_;
  const ParameterKeys keys_;
};

} // namespace

std::optional<Project> projectOf(const QString& fileName) {
  ReadProject target;
  QMap<QString, int> fieldIds;
  if (!Data::ProjectFile::read(fileName, target, fieldIds))
    return std::nullopt;
  return target.project();
}

} // namespace TVR
