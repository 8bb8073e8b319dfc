#pragma once

#include <QVariant>

namespace TVR {

class ProjectReader;

/// The three tables of a project, in the order of batch files.
enum class ProjectTable { Demand, Well, WellDemand };

/// One row per well.
namespace WellColumns {
enum Column { Name, X, Y, Rate, TemperatureChange, ColumnCount };
}

/// One row per well and demand period, the periods of a well one after the other.
namespace WellDemandColumns {
enum Column { Name, Duration, Rate, TemperatureChange, ColumnCount };
}

/// The value of one cell of a table: in SI units, as a number or as a text in the C locale.
struct TableCell {
  int row;
  int column;
  QVariant value;
};

/// Rows of a table, as far as its periods have been entered.
int rowsOf(const ProjectReader& project, ProjectTable table);

/// The value of a cell, in SI units; invalid for one that the table has not.
QVariant cellOf(const ProjectReader& project, ProjectTable table, int row, int column);

} // namespace TVR
