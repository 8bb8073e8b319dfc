#include "data/Manager.h"

#include "data/BatchFile.h"
#include "data/EntityEncoding.h"
#include "data/FileLimits.h"
#include "data/LastParameterSet.h"
#include "data/LegacyReader.h"
#include "data/ManagerAccess.h"
#include "data/ProjectFile.h"
#include "design/DependencyRules.h"
#include "design/WellDesign.h"
#include "messages/UserMessages.h"
#include "tables/DemandModel.h"
#include "tables/PropertyModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QPointF>
#include <QSignalBlocker>
#include <QTextCodec>

#include <algorithm>

namespace TVR::Data {

using namespace Parameter;

Manager* Manager::instance() {
  static Manager* const store = new Manager;
  return store;
}

Manager::Manager() : access_(std::make_unique<Access>(*this)) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  initializeKeys();
  loadDefaults();
}

Manager::~Manager() = default;

void Manager::initializeKeys() {
  for (const ParameterRow& row : parameterTable()) {
    if (*row.key != '\0')
      keys_.insert(row.id, QString::fromLatin1(row.key));
    if (*row.formerKey != '\0')
      formerKeys_.insert(row.id, QString::fromLatin1(row.formerKey));
  }
}

int Manager::idOfKey(const QString& key) const {
  return keys_.key(key, 0);
}

QVariant Manager::label(int id, int role) const {
  return role == EffectiveValue ? QVariant(ParameterName::label(id)) : QVariant();
}

QVariant Manager::value(int id, int role) const {
  if (role != EffectiveValue && role != StoredValue)
    return {};
  if (id == EffectivePorosity || id == AquiferPorosity)
    return porosity(id);
  const QVariant stored = values_.value(id);
  if (role == StoredValue)
    return stored;

  switch (id) {
  case BackgroundImageOrigin: { // the y coordinate is deliberately not consulted
    const QString x = value(BackgroundImageX).toString();
    return QStringLiteral("[%1 %2]").arg(x, x);
  }
  case ViewOrigin:
    return QStringLiteral("[%1 %2]").arg(value(ViewX).toString(), value(ViewY).toString());
  case Isotherms:
    return QVariantList{1, 3, values_.value(AdditionalIsotherm)};
  case SpecificHeatDemand: // MJ to kWh
    return stored.toDouble() / 3.6;
  case BuildingType:
  case ClosestLocation:
    return referenceValue(id, wholeNumber(stored.toDouble()));
  case MaxElementLength: {
    const double length = stored.toDouble();
    return length != 0 && length <= 1000
               ? stored
               : QVariant(values_.value(MinElementLength).toDouble() * 100);
  }
  default:
    return stored;
  }
}

/// The two porosities stand in for each other while one of them is empty.
QVariant Manager::porosity(int id) const {
  const int other = id == AquiferPorosity ? EffectivePorosity : AquiferPorosity;
  const QVariant own = values_.value(id);
  const QVariant substitute = values_.value(other);
  if (own.toDouble() != 0 || substitute == QVariant(0.0))
    return own;
  if (id == AquiferPorosity)
    return substitute;
  const double p = substitute.toDouble();
  return p < 1.0 ? substitute : QVariant(p / 100);
}

int Manager::count(int id) const {
  return wholeNumber(value(id).toDouble());
}

bool Manager::setValue(int id, QVariant value) {
  if (!value.isValid())
    return false;

  if (isClearableText(id)) {
    const bool isZeroNumber =
        (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float) &&
        value.toDouble() == 0;
    if (isZeroNumber || value.toString() == "0.0") {
      values_.insert(id, QVariant());
      emit dataChanged();
      return true;
    }
  }
  if (id == DefaultWellPosition)
    moveWellsFromDefaultPosition(this->value(id).toPointF(), value.toPointF());
  if (isFlagOnWrite(id))
    value = wholeNumber(value.toDouble()) >= 1;

  values_.insert(id, value);
  recalculate(id);
  emit dataChanged();
  return true;
}

void Manager::moveWellsFromDefaultPosition(const QPointF& from, const QPointF& to) {
  // QPointF compares fuzzily; a well has to stand exactly on the old default to follow it. One that
  // was put there on purpose stays: a default that was never set reads as (0, 0), a usual place.
  for (int row = 0; row < wellPositions_.size(); ++row) {
    QPointF& well = wellPositions_[row];
    const bool isGiven = wellModel_ && wellModel_->hasGivenPlace(row);
    if (!isGiven && well.x() == from.x() && well.y() == from.y())
      well = to;
  }
}

void Manager::reset() {
  fileName_.clear();
  loadDefaults();
  if (wellModel_) {
    wellModel_->clear();
    wellPositions_.clear();
  }
  if (demandModel_)
    demandModel_->resize(0);
  resultFrame_.reset();
  emit dataChanged();
}

bool Manager::read(const QString& fileName, QMap<QString, int>& fieldIds) {
  reset();
  setValue(HeatConductivitySurrounding, value(HeatConductivityAquifer));
  setValue(DensitySurrounding, value(DensityAquifer));
  const bool isRead = BatchFile::isBatchFile(fileName)
                          ? BatchFile::read(fileName, *this)
                          : ProjectFile::read(fileName, *this, fieldIds);
  if (isRead)
    fileName_ = fileName;
  return isRead;
}

bool Manager::write(const QString& fileName, BrenvikApp::WorkspaceWindow* window,
                    const QMap<QString, int>& fieldIds) {
  const int periods = demandModel_ ? demandModel_->rowCount() : 1;
  if (const QString excess = FileLimits::excess(count(NumberOfWells), periods); !excess.isEmpty()) {
    tellUser(Severity::Critical, programTitle, fileName + ": " + excess);
    return false;
  }
  return BatchFile::isBatchFile(fileName) ? BatchFile::write(fileName, *this)
                                          : ProjectFile::write(fileName, *this, window, fieldIds);
}

QString Manager::decodeEntities(const QString& text, bool decode) {
  return decode ? TVR::decodeEntities(text) : encodeEntities(text);
}

void Manager::saveLastParameterSet() {
  LastParameterSet::save(*this);
}

void Manager::restoreLastParameterSet() {
  LastParameterSet::restore(*this);
}

void Manager::readCurrentGroup(QSettings& settings) {
  LegacyReader::readCurrentGroup(settings, *this);
}

void Manager::migrateValue(int id) {
  LegacyReader::migrateValue(id, *this);
}

void Manager::matchWellPositionsToCount(int count) {
  const int before = wellPositions_.size();
  wellPositions_.resize(std::max(count, 0));
  const QPointF defaultPosition = value(DefaultWellPosition).toPointF();
  for (int i = before; i < wellPositions_.size(); ++i)
    wellPositions_[i] = defaultPosition;
  if (wellModel_)
    wellModel_->forgetGivenPlaces(std::min(before, wellPositions_.size()));
}

WellModel* Manager::wellModel() {
  matchWellPositionsToCount(count(NumberOfWells));
  if (!wellModel_) {
    {
      // The model writes while it is made. Whoever listens must not ask for it before it stands.
      const QSignalBlocker blocker(this);
      wellModel_ = new WellModel(wellPositions_, *access_, this);
    }
    emit dataChanged();
  }
  return wellModel_;
}

DemandModel* Manager::demandModel() {
  if (!demandModel_)
    demandModel_ = new DemandModel(std::max(count(NumberOfDemandsPerYear), 1), this);
  return demandModel_;
}

WellDemandModel* Manager::wellDemandModel() {
  if (!wellDemandModel_ && wellModel() && demandModel())
    wellDemandModel_ = new WellDemandModel(wellModel_, demandModel_, this);
  return wellDemandModel_;
}

PropertyModel* Manager::addressModel(bool user) {
  const QVector<int> ids = user ? QVector<int>{UserName, UserStreet, UserZip, UserLocation}
                                : QVector<int>{ProjectStreet, ProjectZip, ProjectLocation};
  return new PropertyModel(ids, *access_, true, this);
}

void Manager::recalculate(int id) {
  applyRule(id, *access_);
}

} // namespace TVR::Data
