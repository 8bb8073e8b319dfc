#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace TVR::Data {
class Manager;
class ValueOrigins;
} // namespace TVR::Data

namespace TVR {
struct RunSummary;
}

namespace TVR::Batch {

/// What a job was and what came of it, for other programs: one JSON object, described in
/// docs/json-report.md. Texts are those that a user reads.
class JobReport {
public:
  /// Of this form. Members that are added leave it as it is; one that changes or goes raises it.
  static constexpr int schemaVersion = 1;

  explicit JobReport(const QString& fileName);

  void addError(const QString& text) { errors_ << text; }
  void addWarning(const QString& text) { warnings_ << text; }
  /// Parameters, with what each comes from, and wells, as they are run.
  void addParameters(const Data::Manager& store, const Data::ValueOrigins& origins);
  /// What a run that went well was: counts, what each well had, and the files that it left.
  void addResults(const RunSummary& summary, double cpuSeconds, const QStringList& files);

  /// What the job says of its mesh, see convergenceJson.
  void addConvergence(const QJsonObject& convergence) { object_["convergence"] = convergence; }

  /// Writes the report of a job that ends with `exitCode`; an older one is replaced when it is
  /// complete. False if it can't be written.
  bool write(const QString& fileName, int exitCode) const;

private:
  QJsonObject object_;
  QStringList errors_;
  QStringList warnings_;
};

} // namespace TVR::Batch
