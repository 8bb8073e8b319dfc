#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class FVMesh;

namespace TVR {

class ResultGraphic;
class Simulation;

/// The files that a run writes at its steps where the project asks for them: isolines as shapefiles
/// and the tables of all cells. Keeps in mind what could not be written.
class StepExport {
public:
  /// `graphic` outlives this object. `directory` says where the files go.
  StepExport(ResultGraphic& graphic, std::function<QString()> directory)
      : graphic_(graphic), directory_(std::move(directory)) {}

  void beginTables(const FVMesh& mesh);
  /// Adds the values at `time` [s].
  void continueTables(const Simulation& simulation, double time);
  /// The isolines that the page shows, as those of `time` [s].
  void writeIsolines(double time);

  const QStringList& unwrittenFiles() const { return unwrittenFiles_; }
  void forgetUnwrittenFiles() { unwrittenFiles_.clear(); }

private:
  void note(bool isWritten, const QString& file);

  ResultGraphic& graphic_;
  const std::function<QString()> directory_;
  QStringList unwrittenFiles_;
};

} // namespace TVR
