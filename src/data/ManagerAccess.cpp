#include "data/ManagerAccess.h"

#include "tables/DemandModel.h"
#include "tables/WellModel.h"

namespace TVR::Data {

double Manager::Access::number(int id) const {
  return store_.value(id).toDouble();
}

bool Manager::Access::flag(int id) const {
  return store_.value(id).toBool();
}

void Manager::Access::write(int id, double value) {
  store_.setValue(id, value);
}

double Manager::Access::storedNumber(int id) const {
  return store_.value(id, StoredValue).toDouble();
}

std::string Manager::Access::text(int id) const {
  return store_.value(id).toString().toStdString();
}

void Manager::Access::writeFlag(int id, bool value) {
  store_.setValue(id, value);
}

void Manager::Access::writeText(int id, const std::string& value) {
  store_.setValue(id, QString::fromStdString(value));
}

void Manager::Access::mirror(int id, double value) {
  store_.values_.insert(id, value);
}

void Manager::Access::mirrorStored(int id, int source) {
  store_.values_.insert(id, store_.value(source, StoredValue));
}

void Manager::Access::writeReferenceValue(int id, int column, int row) {
  store_.setValue(id, store_.referenceValue(column, row));
}

void Manager::Access::applyReferenceRow(std::string_view table, int row) {
  store_.applyReferenceRow(QString::fromUtf8(table.data(), static_cast<int>(table.size())), row);
}

double Manager::Access::providedFilterDiameter(int row) const {
  return store_.referenceValue(Parameter::ProvidedFilterDiameter, row).toDouble();
}

void Manager::Access::resizeWells(int count) {
  const int before = store_.wellPositions_.size();
  store_.matchWellPositionsToCount(count);
  if (store_.wellModel_)
    store_.wellModel_->revert(store_.wellPositions_, before);
}

void Manager::Access::clearWells() {
  if (store_.wellModel_)
    store_.wellModel_->clear();
}

void Manager::Access::resizeDemandPeriods(int count) {
  store_.wellDemandModel();
  store_.demandModel()->resize(count);
}

void Manager::Access::emitStartSimulation() {
  emit store_.startSimulation();
}

void Manager::Access::emitUpdateCurrentGraphic() {
  emit store_.updateCurrentGraphic();
}

QString Manager::Access::label(int id) const {
  return ParameterName::label(id);
}

QVariant Manager::Access::value(int id) const {
  return store_.value(id);
}

bool Manager::Access::setValue(int id, const QVariant& value) {
  return store_.setValue(id, value);
}

} // namespace TVR::Data
