#pragma once

#include "design/ParameterId.h"
#include "design/RuleTarget.h"

#include <bitset>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace TVR {

/// Some of the parameters, by id.
using ParameterSet = std::bitset<Parameter::Count>;

/// What a rule would write.
struct RecordedWrite {
  int id;
  double number = 0.0; ///< 0 for a text
  std::string text;    ///< empty for a number; for a value of a reference table, column and row
  ParameterSet reads;  ///< everything that the rule had read until then
  bool isFurther;      ///< one more result of what the write before it was computed from

  /// Whether both bring the same; a value that is not a number is the same as another.
  bool isSame(const RecordedWrite& other) const;
};

/// One parameter of a project as if it were another: a number times `factor` (`factor` itself where
/// it is 0), a truth value turned round, a text with a letter more.
struct Alteration {
  int id;
  double factor;
};

/// Stands for a project while a rule is run to see what it reads and writes. Nothing is done to the
/// project: no write is carried out, so that no other rule runs, and what a rule reads after a
/// write of its own is what the project holds. The columns of a whole row of a reference table are
/// not known here, and not among the writes.
class RuleRecorder final : public RuleTarget {
public:
  /// Reads from `project`, and the diameters of filters, from row 1, from `filters`. Both outlive
  /// it.
  RuleRecorder(const RuleTarget& project, std::span<const double> filters,
               const std::optional<Alteration>& alteration = {});

  /// Writes and mirrors, in the order in which the rule made them.
  const std::vector<RecordedWrite>& writes() const { return writes_; }
  const ParameterSet& reads() const { return reads_; }

  double number(int id) const override;
  bool flag(int id) const override;
  double storedNumber(int id) const override;
  std::string text(int id) const override;
  double providedFilterDiameter(int row) const override;

  void write(int id, double value) override { record(id, value); }
  void writeFlag(int id, bool value) override { record(id, value ? 1.0 : 0.0); }
  void writeText(int id, const std::string& value) override { record(id, 0.0, value); }
  void mirror(int id, double value) override { record(id, value); }
  void mirrorStored(int id, int source) override { record(id, storedNumber(source)); }
  void writeReferenceValue(int id, int column, int row) override;
  void applyReferenceRow(std::string_view, int) override {}
  void resizeWells(int) override {}
  void clearWells() override {}
  void resizeDemandPeriods(int) override {}
  void emitStartSimulation() override {}
  void emitUpdateCurrentGraphic() override {}

private:
  void note(int id) const;
  void record(int id, double number, const std::string& text = {});
  bool isAltered(int id) const { return alteration_ && alteration_->id == id; }
  double altered(int id, double number) const;

  const RuleTarget& project_;
  const std::span<const double> filters_;
  const std::optional<Alteration> alteration_;
  mutable ParameterSet reads_;
  mutable bool hasReadMore_ = true; ///< than before the last write
  std::vector<RecordedWrite> writes_;
};

} // namespace TVR
