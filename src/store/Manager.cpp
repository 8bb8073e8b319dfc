#include "store/Manager.h"

#include "design/DependencyRules.h"
#include "design/ParameterId.h"
#include "design/RuleTarget.h"
#include "design/WellDesign.h"
#include "files/BatchFile.h"
#include "files/EntityEncoding.h"
#include "files/LastParameterSet.h"
#include "files/LegacyReader.h"
#include "files/ProjectFile.h"
#include "host/GraphicsInterface.h"
#include "messages/UserMessages.h"
#include "project/ParameterTable.h"
#include "project/ProjectLimits.h"
#include "store/ChangeRecorder.h"
#include "store/DefaultValues.h"
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

class Manager::Access final : public RuleTarget, public PropertySource {
public:
  explicit Access(Manager& store) : store_(store) {}

  double number(int id) const override { return store_.number(id); }
  bool flag(int id) const override { return store_.flag(id); }
  void write(int id, double value) override { store_.setValue(id, value); }

  double storedNumber(int id) const override { return store_.value(id, StoredValue).toDouble(); }
  std::string text(int id) const override { return store_.text(id).toStdString(); }
  void writeFlag(int id, bool value) override { store_.setValue(id, value); }
  void writeText(int id, const std::string& value) override {
    store_.setValue(id, QString::fromStdString(value));
  }
  void mirror(int id, double value) override { store_.setStored(id, value); }
  void mirrorStored(int id, int source) override {
    store_.setStored(id, store_.value(source, StoredValue));
  }
  void writeReferenceValue(int id, int column, int row) override {
    const ChangeRecorder::Writer writer(*store_.changes_, ValueOrigin::ReferenceDatabase);
    store_.setValue(id, store_.referenceValue(column, row));
  }
  void applyReferenceRow(std::string_view table, int row) override {
    store_.applyReferenceRow(QString::fromUtf8(table.data(), static_cast<int>(table.size())), row);
  }
  double providedFilterDiameter(int row) const override {
    return store_.referenceValue(ProvidedFilterDiameter, row).toDouble();
  }
  void resizeWells(int count) override {
    const int before = store_.wellPositions().size();
    store_.matchWellPositionsToCount(count);
    QPolygonF wells = store_.wellPositions();
    if (store_.hasWellModel())
      store_.wellModel_->revert(wells, before);
  }
  void clearWells() override {
    if (store_.hasWellModel())
      store_.wellModel_->clear();
  }
  void resizeDemandPeriods(int count) override {
    store_.wellDemandModel();
    store_.demandModel()->resize(count);
  }
  void emitStartSimulation() override { emit store_.startSimulation(); }
  void emitUpdateCurrentGraphic() override { emit store_.updateCurrentGraphic(); }

  QString label(int id) const override { return ParameterName::label(id); }
  QVariant value(int id) const override { return store_.value(id); }
  bool setValue(int id, const QVariant& value) override { return store_.setValue(id, value); }

private:
  Manager& store_;
};

Manager* Manager::instance() {
  static Manager* const store = new Manager;
  return store;
}

Manager::Manager()
    : changes_(std::make_unique<ChangeRecorder>(project_)),
      access_(std::make_unique<Access>(*this)) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  loadDefaults();
}

Manager::~Manager() = default;

QVariant Manager::label(int id, int role) const {
  return role == EffectiveValue ? QVariant(ParameterName::label(id)) : QVariant();
}

QVariant Manager::value(int id, int role) const {
  if (role == EffectiveValue)
    return effective(id);
  if (role != StoredValue)
    return {};
  const bool isPorosity = id == EffectivePorosity || id == AquiferPorosity;
  return isPorosity ? effective(id) : stored(id);
}

void Manager::addJournal(Journal* journal) {
  changes_->addJournal(journal);
}

void Manager::removeJournal(Journal* journal) {
  changes_->removeJournal(journal);
}

const RuleTarget& Manager::ruleReader() const {
  return *access_;
}

/// A project that comes from another store may have tables that nobody has asked this one for.
void Manager::makeModels(const MadeTables& tables) {
  if (tables.wells && !wellModel_)
    wellModel();
  if (tables.periods && !demandModel_)
    demandModel();
  if (tables.wellPeriods && !wellDemandModel_)
    wellDemandModel();
}

void Manager::setProject(const Project& project) {
  const ChangeScope change(changes_.get(), ChangedProject);
  makeModels(project.made);
  project_ = project;
  if (demandModel_) {
    demandModel_->refresh();
    if (hasDemandModel() && project_.durations.isEmpty())
      demandModel_->resize(std::max(count(NumberOfDemandsPerYear), 1));
  }
  if (wellModel_)
    wellModel_->revert();
  emit dataChanged();
}

void Manager::keep(int id, const QVariant& value) {
  changes_->writing(id, value);
  project_.values.insert(id, value);
}

void Manager::setStored(int id, const QVariant& value) {
  const ChangeScope change(changes_.get(), id);
  keep(id, value);
}

bool Manager::setValue(int id, QVariant value) {
  if (!value.isValid())
    return false;

  const ChangeScope change(changes_.get(), id);
  if (isClearableText(id)) {
    const bool isZeroNumber =
        (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float) &&
        value.toDouble() == 0;
    if (isZeroNumber || value.toString() == "0.0") {
      keep(id, QVariant());
      emit dataChanged();
      return true;
    }
  }
  if (id == DefaultWellPosition)
    moveWellsFromDefaultPosition(this->value(id).toPointF(), value.toPointF());
  if (isFlagOnWrite(id))
    value = wholeNumber(value.toDouble()) >= 1;

  keep(id, value);
  recalculate(id);
  emit dataChanged();
  return true;
}

void Manager::moveWellsFromDefaultPosition(const QPointF& from, const QPointF& to) {
  // QPointF compares fuzzily; a well has to stand exactly on the old default to follow it. One that
  // was put there on purpose stays: a default that was never set reads as (0, 0), a usual place.
  for (int row = 0; row < wellPositions().size(); ++row) {
    QPointF& well = project_.wells.positions[row];
    const bool isGiven = project_.wells.givenPlaces.contains(row);
    if (!isGiven && well.x() == from.x() && well.y() == from.y())
      well = to;
  }
}

void Manager::reset() {
  const ChangeScope change(changes_.get(), ChangedProject);
  fileName_.clear();
  loadDefaults();
  project_.wells.clearEntries();
  if (wellModel_)
    project_.wells.positions.clear();
  if (demandModel_)
    demandModel_->resize(0);
  project_.durations.clear();
  resultFrame_.reset();
  emit dataChanged();
}

bool Manager::read(const QString& fileName, QMap<QString, int>& fieldIds) {
  const ChangeScope change(changes_.get(), ChangedProject);
  reset();
  {
    const ChangeRecorder::Writer writer(*changes_, ValueOrigin::Rule);
    setValue(HeatConductivitySurrounding, value(HeatConductivityAquifer));
    setValue(DensitySurrounding, value(DensityAquifer));
  }
  const ChangeRecorder::Writer writer(*changes_, ValueOrigin::File);
  const bool isBatchFile = BatchFile::isBatchFile(fileName);
  if (!(isBatchFile ? BatchFile::read(fileName, *this)
                    : ProjectFile::read(fileName, *this, fieldIds)))
    return false;
  if (!isBatchFile)
    emit dataChanged();
  fileName_ = fileName;
  return true;
}

/// A project that was put in may hold what no table was made for yet.
MadeTables Manager::madeTables() const {
  const Wells& wells = project_.wells;
  return {hasWellModel() || wells.hasEntries(), hasDemandModel() || !project_.durations.isEmpty(),
          hasWellDemandModel() || !wells.periodRates.isEmpty() ||
              !wells.periodTemperatureChanges.isEmpty()};
}

bool Manager::write(const QString& fileName, BrenvikApp::WorkspaceWindow* window,
                    const QMap<QString, int>& fieldIds) {
  const int periods = std::max(project_.durations.size(), 1);
  if (const QString excess = ProjectLimits::excess(count(NumberOfWells), periods);
      !excess.isEmpty()) {
    tellUser(Severity::Critical, programTitle, tr("%1: %2").arg(fileName, excess));
    return false;
  }
  matchWellPositions();
  const MadeTables tables = madeTables();
  if (BatchFile::isBatchFile(fileName))
    return BatchFile::write(fileName, project_, tables);

  std::optional<ProjectFile::Page> page;
  if (window) {
    page = ProjectFile::Page{{}, fieldIds, resultFrame_};
    if (const auto* graphic = dynamic_cast<Sketra_lib::GraphicsWorkspaceWindow*>(window))
      page->document = graphic->contents();
  }
  const bool isWritten = ProjectFile::write(fileName, project_, keys_, tables, page);
  wellModel(); // a project file holds the wells in any case
  return isWritten;
}

QString Manager::decodeEntities(const QString& text, bool decode) {
  return decode ? TVR::decodeEntities(text) : encodeEntities(text);
}

void Manager::saveLastParameterSet() {
  matchWellPositions();
  LastParameterSet::save(project_, keys_, madeTables().wells);
}

void Manager::restoreLastParameterSet() {
  const ChangeScope change(changes_.get(), ChangedProject);
  reset();
  const ChangeRecorder::Writer writer(*changes_, ValueOrigin::Settings);
  LastParameterSet::restore(*this);
  emit dataChanged();
}

void Manager::readCurrentGroup(QSettings& settings) {
  const ChangeScope change(changes_.get(), ChangedProject);
  const ChangeRecorder::Writer writer(*changes_, ValueOrigin::Settings);
  LegacyReader::readCurrentGroup(settings, *this);
}

void Manager::migrateValue(int id) {
  const ChangeScope change(changes_.get(), id);
  LegacyReader::migrateValue(id, *this);
}

void Manager::matchWellPositionsToCount(int count) {
  project_.wells.resizePositions(count, effective(DefaultWellPosition).toPointF());
}

void Manager::matchWellPositions() {
  const ChangeScope change(changes_.get(), MadeTable);
  matchWellPositionsToCount(count(NumberOfWells));
}

WellModel* Manager::wellModel() {
  const ChangeScope change(changes_.get(), MadeTable);
  matchWellPositions();
  if (!hasWellModel()) {
    {
      // The model writes while it is made. Whoever listens must not ask for it before it stands.
      const QSignalBlocker blocker(this);
      if (wellModel_) {
        wellModel_->calculateMinDistance();
      } else {
        wellModel_ = new WellModel(project_.wells, *access_, this);
        wellModel_->setKeeper(changes_.get());
      }
    }
    project_.made.wells = true;
    emit dataChanged();
  }
  return wellModel_;
}

DemandModel* Manager::demandModel() {
  if (!hasDemandModel()) {
    const ChangeScope change(changes_.get(), MadeTable);
    const int periods = project_.durations.isEmpty() ? std::max(count(NumberOfDemandsPerYear), 1)
                                                     : project_.durations.size();
    if (demandModel_) {
      demandModel_->resize(periods);
    } else {
      demandModel_ = new DemandModel(project_.durations, periods, this);
      demandModel_->setKeeper(changes_.get());
    }
    project_.made.periods = true;
  }
  return demandModel_;
}

WellDemandModel* Manager::wellDemandModel() {
  if (!(hasWellModel() && hasDemandModel() && hasWellDemandModel())) {
    const ChangeScope change(changes_.get(), MadeTable);
    wellModel();
    demandModel();
    if (!wellDemandModel_)
      wellDemandModel_ = new WellDemandModel(wellModel_, demandModel_, this);
    project_.made.wellPeriods = true;
  }
  return wellDemandModel_;
}

int Manager::makeTable(ProjectTable table) {
  switch (table) {
  case ProjectTable::Demand:
    return demandModel()->rowCount();
  case ProjectTable::Well:
    return wellModel()->rowCount();
  case ProjectTable::WellDemand:
    return wellDemandModel()->rowCount();
  }
  return 0;
}

void Manager::setCells(ProjectTable table, const std::vector<TableCell>& cells) {
  const ChangeScope change(changes_.get(),
                           table == ProjectTable::Demand ? ChangedPeriods : ChangedWells);
  makeTable(table);
  if (table == ProjectTable::Well) {
    wellModel_->setCells(cells);
    return;
  }
  QAbstractItemModel* const model = table == ProjectTable::Demand
                                        ? static_cast<QAbstractItemModel*>(demandModel_)
                                        : static_cast<QAbstractItemModel*>(wellDemandModel_);
  for (const auto& [row, column, value] : cells)
    if (const QModelIndex index = model->index(row, column); index.isValid())
      model->setData(index, value, Qt::EditRole);
}

void Manager::resizePeriods(int count) {
  demandModel()->resize(count);
}

void Manager::giveAllPlaces() {
  wellModel()->giveAllPlaces();
}

void Manager::clearWellEntries() {
  wellModel()->clear();
}

PropertyModel* Manager::addressModel(bool user) {
  const QVector<int> ids = user ? QVector<int>{UserName, UserStreet, UserZip, UserLocation}
                                : QVector<int>{ProjectStreet, ProjectZip, ProjectLocation};
  return new PropertyModel(ids, *access_, true, this);
}

void Manager::recalculate(int id) {
  const ChangeRecorder::Writer writer(*changes_, ValueOrigin::Rule);
  applyRule(id, *access_);
}

QString Manager::language() const {
  const QString language = stored(GuiLanguage).toString();
  return language.isEmpty() ? QStringLiteral("en") : language;
}

void Manager::loadDefaults() {
  auto defaults = defaultValues(keys_);
  if (!defaults)
    return;
  if (const QVariant language = stored(GuiLanguage); language.isValid())
    defaults->insert(GuiLanguage, language);
  changes_->writingDefaults();
  project_.values = *defaults;
}

QVariant Manager::referenceValue(int id, int row) const {
  return id == BuildingType ? ReferenceDatabase::text(key(id), row, language())
                            : ReferenceDatabase::value(key(id), row);
}

void Manager::applyReferenceRow(const QString& table, int row) {
  const ChangeRecorder::Writer writer(*changes_, ValueOrigin::ReferenceDatabase);
  for (const auto& [key, value] : ReferenceDatabase::row(table, row))
    if (const int id = keys_.idOfKey(key, -1); id >= 0)
      setValue(id, value);
}

QList<Choice> Manager::choices(int id) const {
  return ReferenceDatabase::choices(id, language());
}

} // namespace TVR::Data
