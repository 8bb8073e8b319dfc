#pragma once

#include "data/Manager.h"
#include "design/RuleTarget.h"
#include "tables/PropertyModel.h"

namespace TVR::Data {

/// The store as the dependency rules and the table models see it.
class Manager::Access final : public RuleTarget, public PropertySource {
public:
  explicit Access(Manager& store) : store_(store) {}

  double number(int id) const override;
  bool flag(int id) const override;
  void write(int id, double value) override;

  double storedNumber(int id) const override;
  std::string text(int id) const override;
  void writeFlag(int id, bool value) override;
  void writeText(int id, const std::string& value) override;
  void mirror(int id, double value) override;
  void mirrorStored(int id, int source) override;
  void writeReferenceValue(int id, int column, int row) override;
  void applyReferenceRow(std::string_view table, int row) override;
  double providedFilterDiameter(int row) const override;
  void resizeWells(int count) override;
  void clearWells() override;
  void resizeDemandPeriods(int count) override;
  void emitStartSimulation() override;
  void emitUpdateCurrentGraphic() override;

  QString label(int id) const override;
  QVariant value(int id) const override;
  bool setValue(int id, const QVariant& value) override;

private:
  Manager& store_;
};

} // namespace TVR::Data
