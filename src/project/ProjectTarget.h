#pragma once

#include "project/ParameterKeys.h"
#include "project/ProjectReader.h"
#include "project/ProjectTables.h"
#include "project/RunFrame.h"

#include <QByteArray>

#include <vector>

namespace TVR {

/// What readers of files, runs and the page of results may do to a project. The store implements
/// it, and makes a table when it is first asked for.
class ProjectTarget : public ProjectReader {
public:
  /// Stores a value and runs the rules that depend on it. False for an invalid value only.
  virtual bool setValue(int id, QVariant value) = 0;
  /// Stores a value as it is: no rule runs and nothing is emitted.
  virtual void setStored(int id, const QVariant& value) = 0;
  virtual const ParameterKeys& keys() const = 0;

  /// Makes sure that a table stands, and returns how many rows it has.
  virtual int makeTable(ProjectTable table) = 0;
  /// Sets cells in their order. Those that the table has not are passed over.
  virtual void setCells(ProjectTable table, const std::vector<TableCell>& cells) = 0;
  virtual void resizePeriods(int count) = 0;
  /// All wells stand where they were put on purpose, coordinates that nobody set included.
  virtual void giveAllPlaces() = 0;
  /// Forgets names, rates and temperature changes of the wells.
  virtual void clearWellEntries() = 0;

  /// The frame of the run whose results the file holds.
  virtual void setResultFrame(const RunFrame& frame) = 0;
  /// The page of the file, as a document.
  virtual void takePage(const QByteArray& document) = 0;
};

} // namespace TVR
