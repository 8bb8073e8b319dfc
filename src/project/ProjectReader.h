#pragma once

#include "design/ParameterReader.h"
#include "project/Project.h"
#include "project/WellReader.h"

#include <QString>
#include <QVariant>

#include <vector>

namespace TVR {

/// What may be read of a project, whoever keeps it: the store, a value (ProjectView), or edits that
/// are not applied yet (ProjectOverlay). Nothing throws, and reading changes nothing.
class ProjectReader : public ParameterReader {
public:
  /// What is stored for a parameter, without any conversion; invalid for an id without a value.
  virtual QVariant stored(int id) const = 0;
  /// The value that counts: the stored one, but for parameters that stand in for each other, are
  /// built from others, or are kept in another unit. Names from the reference database only where
  /// `referenceText` knows them.
  QVariant effective(int id) const;

  /// The effective value as a number; what is none counts as 0.
  double number(int id) const override { return effective(id).toDouble(); }
  bool flag(int id) const override { return effective(id).toBool(); }
  /// As a whole number, cut towards zero: a file's "4.0" is 4.
  int count(int id) const;
  QString text(int id) const { return effective(id).toString(); }
  /// Whether a formula had no answer.
  bool isNan(int id) const { return text(id) == "nan"; }

  WellReader wells() const { return {enteredWells(), *this}; }
  /// Durations of the demand periods of a year [s], one at least: the entered ones, or else equal
  /// parts of a year, as many as the parameter `number_of_demands_per_year` says.
  std::vector<double> periods() const;

  virtual const Wells& enteredWells() const = 0;
  virtual const ByPeriod& enteredDurations() const = 0;

  /// The text in row `row` of the reference table of a parameter; invalid where there is none.
  virtual QVariant referenceText(int /*id*/, int /*row*/) const { return {}; }

private:
  QVariant porosity(int id) const;
};

/// A project that is a value, which must outlive this.
class ProjectView final : public ProjectReader {
public:
  explicit ProjectView(const Project& project) : project_(project) {}

  QVariant stored(int id) const override { return project_.values.value(id); }
  const Wells& enteredWells() const override { return project_.wells; }
  const ByPeriod& enteredDurations() const override { return project_.durations; }

private:
  const Project& project_;
};

/// A project with other values for some parameters, which were typed but not applied, or are a
/// variant to be tried. No rule runs. `base` must outlive this.
class ProjectOverlay final : public ProjectReader {
public:
  explicit ProjectOverlay(const ProjectReader& base) : base_(base) {}

  void set(int id, const QVariant& value) { values_.insert(id, value); }

  QVariant stored(int id) const override;
  const Wells& enteredWells() const override { return base_.enteredWells(); }
  const ByPeriod& enteredDurations() const override { return base_.enteredDurations(); }
  QVariant referenceText(int id, int row) const override { return base_.referenceText(id, row); }

private:
  const ProjectReader& base_;
  ParameterValues values_;
};

} // namespace TVR
