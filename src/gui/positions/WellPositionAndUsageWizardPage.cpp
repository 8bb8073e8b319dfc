#include "gui/positions/WellPositionAndUsageWizardPage.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "gui/delegates/WellDemandModelDelegate.h"
#include "gui/delegates/WellModelDelegate.h"
#include "gui/positions/PeriodsOfWell.h"
#include "gui/positions/RateCheck.h"
#include "messages/UserMessages.h"
#include "project/Units.h"
#include "store/Manager.h"
#include "store/UserStep.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace TVR::GUI {

using namespace Parameter;

namespace {

int asCount(const QVariant& value) {
  return wholeNumber(value.toDouble()); // a file's "4.0" is 4
}

void replaceDelegate(QTableView& view, QAbstractItemDelegate* delegate) {
  view.itemDelegate()->deleteLater();
  view.setItemDelegate(delegate);
}

/// What is shown is no change: a count beyond the range of its box stays in the store.
void showCount(QSpinBox& box, const QVariant& count) {
  const QSignalBlocker blocker(box);
  box.setValue(asCount(count));
}

QString wholeMetres(const QVariant& distance) {
  return QString::number(distance.toDouble(), 'f', 0);
}

constexpr struct {
  const char* text;
  const char* unit;
} timeUnitActions[] = {
    {QT_TRANSLATE_NOOP("TVR::GUI::WellPositionAndUsageWizardPage", "Time unit: hours"), "h"},
    {QT_TRANSLATE_NOOP("TVR::GUI::WellPositionAndUsageWizardPage", "Time unit: days"), "d"},
    {QT_TRANSLATE_NOOP("TVR::GUI::WellPositionAndUsageWizardPage", "Time unit: months"), "M"}};

} // namespace

WellPositionAndUsageWizardPage::WellPositionAndUsageWizardPage(const PageSurroundings& surroundings,
                                                               QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store), placing_(surroundings.store) {
  setupUi(this);
  connectWidgets();
  connectTables();
}

void WellPositionAndUsageWizardPage::connectWidgets() {
  using Page = WellPositionAndUsageWizardPage;
  connect(wellCountSpinBox, qOverload<int>(&QSpinBox::valueChanged), this, &Page::changeWellCount);
  connect(extendPushButton, &QPushButton::clicked, this, &Page::showExtendTableView);
  connect(demandStepsSpinBox, qOverload<int>(&QSpinBox::valueChanged), this,
          &Page::changeDemandStepNumber);
  connect(tableOfWellPositions, &QTableView::pressed, this, &Page::wellSelected);
  connect(placeWellsButton, &QPushButton::clicked, this, &Page::placeWells);
  connect(undoPlacingButton, &QPushButton::clicked, this, &Page::undoPlacing);
  for (const SpreadsheetView* const table : {tableOfWellPositions, extendTableView}) {
    connect(table, &SpreadsheetView::refused, this, &Page::sayRefusal);
    connect(table, &SpreadsheetView::pasted, this, [this] { showFeedback({}); });
  }
  tableOfWellPositions->pasteBy(
      [this](const auto& cells) { paste(ProjectTable::Well, cells); },
      [](int rows) {
        return tr("The block needs %1 wells. Set the well count to it first.").arg(rows);
      });
  extendTableView->pasteBy(
      [this](const auto& cells) { paste(ProjectTable::WellDemand, cells); },
      [](int rows) {
        return tr("The block needs %1 demand steps. Set their number to it first.").arg(rows);
      });
}

void WellPositionAndUsageWizardPage::paste(ProjectTable table,
                                           const std::vector<TableCell>& cells) {
  const Data::UserStep step(store_, cells.size() == 1 ? tr("Paste a cell")
                                                      : tr("Paste %1 cells").arg(cells.size()));
  store_.setCells(table, cells);
}

void WellPositionAndUsageWizardPage::connectTables() {
  using Page = WellPositionAndUsageWizardPage;
  const WellModel* const wells = store_.wellModel();
  connect(wells, &WellModel::updateGraphic, this, &Page::emitGraphicsUpdate);
  connect(wells, &WellModel::ratesModified, this, &Page::wellRatesModified);
  connect(store_.demandModel(), &DemandModel::dataChanged, this, &Page::demandModelChanged);
  connect(wells, &WellModel::updateGraphic, this, &Page::showWhetherPlacingCanBeUndone);
  connect(&store_, &Data::Manager::dataChanged, this, &Page::showWhetherPlacingCanBeUndone);
}

void WellPositionAndUsageWizardPage::initializePage() {
  emitGraphicsUpdate();
  wellRatesModified();
  savedValues = {{NumberOfDemandsPerYear, store_.value(NumberOfDemandsPerYear)},
                 {NumberOfWells, store_.value(NumberOfWells)}};
  showCount(*wellCountSpinBox, savedValues.value(NumberOfWells));
  showDistances();
  showWells();
  showPeriods();
  validationCheckBox->setChecked(true);
  setExtended(demandStepsSpinBox->value() >= 2);
  validationCheckBox->setVisible(isExtended());
  placing_.forget();
  showWhetherPlacingCanBeUndone();
}

void WellPositionAndUsageWizardPage::showDistances() {
  InjectionPumpingDistance->setText(wholeMetres(store_.value(RadiusOfInfluence)));
  // Required oddity: the distance is looked for among the values that the page has saved, where it
  // never is, so that both labels show the same.
  const bool hasDistance = savedValues.value(DMin).toDouble() != 0.0;
  TwoWellDistance->setText(wholeMetres(store_.value(hasDistance ? DMin : RadiusOfInfluence)));
}

void WellPositionAndUsageWizardPage::showWells() {
  tableOfWellPositions->setModel(store_.wellModel());
  replaceDelegate(*tableOfWellPositions, new WellModelDelegate(this));
  tableOfWellPositions->fitColumns();
  tableOfWellPositions->horizontalHeader()->setStretchLastSection(true);
  tableOfWellPositions->setCurrentIndex({});
  // Whoever goes from well to well by keyboard chooses them as the mouse does.
  connect(tableOfWellPositions->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &WellPositionAndUsageWizardPage::wellSelected, Qt::UniqueConnection);
}

void WellPositionAndUsageWizardPage::showPeriods() {
  // A project that was begun after another one has no period yet, and no rates to test.
  if (store_.demandModel()->rowCount() == 0)
    store_.resizePeriods(std::max(asCount(savedValues.value(NumberOfDemandsPerYear)), 1));
  showCount(*demandStepsSpinBox, savedValues.value(NumberOfDemandsPerYear));
  extendTableView->horizontalHeader()->setStretchLastSection(true);
  auto* const delegate = new WellDemandModelDelegate(this, extendTableView);
  replaceDelegate(*extendTableView, delegate);
  if (!extendTableView->model())
    extendTableView->setModel(new PeriodsOfWell(store_.wellDemandModel(), this));
  extendTableView->fitColumns();
  const QModelIndex first = store_.demandModel()->index(0, 0);
  demandModelChanged(first, first);
  makeTimeUnitActions(delegate);
}

void WellPositionAndUsageWizardPage::makeTimeUnitActions(QObject* delegate) {
  for (QAction* const action : extendTableView->actions()) {
    extendTableView->removeAction(action);
    action->deleteLater();
  }
  auto* const group = new QActionGroup(delegate); // there is always one unit
  for (const auto& [text, unit] : timeUnitActions) {
    auto* const action = new QAction(tr(text), group);
    action->setCheckable(true);
    action->setChecked(unit == timeUnitActions[0].unit);
    action->setData(unit);
    connect(action, SIGNAL(toggled(bool)), delegate, SLOT(timeUnitChanged(bool)));
    extendTableView->addAction(action);
  }
  extendTableView->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void WellPositionAndUsageWizardPage::setExtended(bool isExtended) {
  for (QWidget* const widget :
       {static_cast<QWidget*>(demandStepsLabel), static_cast<QWidget*>(demandStepsSpinBox),
        static_cast<QWidget*>(extendTableView)})
    widget->setVisible(isExtended);
  tableOfWellPositions->setColumnHidden(WellModel::Rate, isExtended);
  tableOfWellPositions->setColumnHidden(WellModel::TemperatureChange, isExtended);
  setDynamicTexts();
}

void WellPositionAndUsageWizardPage::showExtendTableView() {
  if (!isExtended()) {
    // Required oddity: only a page that is entered with several periods shows the check box.
    setExtended(true);
    return;
  }
  setExtended(false);
  validationCheckBox->hide();
  validationCheckBox->setChecked(true);
}

void WellPositionAndUsageWizardPage::setDynamicTexts() {
  extendPushButton->setText(isExtended() ? tr("Simplify") : tr("Extend"));
  const QList<QAction*> actions = extendTableView->actions();
  for (int i = 0; i < actions.size(); ++i)
    actions.at(i)->setText(tr(timeUnitActions[i].text));
}

void WellPositionAndUsageWizardPage::changeWellCount(int count) {
  if (asCount(store_.value(NumberOfWells)) == count)
    return;
  store_.setValue(NumberOfWells, count);
  store_.setValue(WellWizardDone, false);
  emitGraphicsUpdate();
}

void WellPositionAndUsageWizardPage::changeDemandStepNumber(int count) {
  if (asCount(store_.value(NumberOfDemandsPerYear)) != count) {
    store_.setValue(NumberOfDemandsPerYear, count);
    store_.setValue(EnergyWizardDone, false);
  }
  const QModelIndex first = store_.demandModel()->index(0, 0);
  demandModelChanged(first, first);
}

void WellPositionAndUsageWizardPage::demandModelChanged(const QModelIndex&, const QModelIndex&) {
  constexpr double secondsOfUsualYear = 3.1536e7;
  constexpr double daysOfUsualYear = 365.0;
  double sum = 0.0;
  for (const double duration : store_.demandModel()->durations())
    sum += duration;
  if (sum < 1.0)
    sum = secondsOfUsualYear;
  totalDemandTimeLabel->setText(tr("Total duration: %1 h (%2 a)")
                                    .arg(sum / secondsPerHour, 6, 'f', 1)
                                    .arg(sum / secondsPerDay / daysOfUsualYear, 4, 'f', 1));
}

void WellPositionAndUsageWizardPage::wellSelected(const QModelIndex& index) {
  auto* const periods = static_cast<PeriodsOfWell*>(extendTableView->model());
  if (!periods || !index.isValid())
    return;
  periods->showWell(index.row(), index.sibling(index.row(), WellModel::Name).data().toString());
  extendTableView->fitColumns();
}

void WellPositionAndUsageWizardPage::wellRatesModified() {
  constexpr double mostPercent = 10.0;
  const WellModel& wells = *store_.wellModel();
  const double even = store_.number(MeanFlowRate) * 2.0 / store_.number(NumberOfWells);
  bool isEven = true;
  for (int row = 0; row < wells.rowCount(); ++row) {
    // Required oddity: a well that pumps differs from its share by its sign, and hides the box.
    const double rate = wells.index(row, WellModel::Rate).data(Qt::EditRole).toDouble();
    if (std::abs(rate - even) * 100.0 / even > mostPercent)
      isEven = false;
  }
  groupBoxRecommendation->setVisible(isEven);
}

void WellPositionAndUsageWizardPage::update() {
  tableOfWellPositions->refresh();
  store_.wellModel()->calculateMinDistance();
  showWhetherPlacingCanBeUndone();
  QWizardPage::update();
}

void WellPositionAndUsageWizardPage::emitGraphicsUpdate() {
  emit updateGraphics();
}

void WellPositionAndUsageWizardPage::cleanupPage() {
  placing_.forget();
  const auto isChanged = [this](int id) {
    return asCount(savedValues.value(id)) != asCount(store_.value(id));
  };
  if (!isChanged(NumberOfDemandsPerYear) && !isChanged(NumberOfWells))
    return;
  if (!userSaysOk(programTitle, tr("Reset all changes on the well position and demand parameter?")))
    return;
  store_.setValue(NumberOfDemandsPerYear, savedValues.value(NumberOfDemandsPerYear));
  store_.setValue(NumberOfWells, savedValues.value(NumberOfWells));
  const int periods = asCount(savedValues.value(NumberOfDemandsPerYear));
  if (periods != store_.demandModel()->rowCount())
    store_.demandModel()->resize(periods);
  showFeedback({});
}

bool WellPositionAndUsageWizardPage::validatePage() {
  if (!passes())
    return false;
  storeDerivedCells();
  wellRatesModified();
  designForLargestRate();
  placing_.forget();
  return true;
}

QString WellPositionAndUsageWizardPage::missingCoordinates() const {
  const QAbstractItemModel& wells = *tableOfWellPositions->model();
  const auto text = [&wells](int row, int column) {
    return wells.index(row, column).data().toString();
  };
  QString errors;
  for (int row = 0; row < wells.rowCount(); ++row) {
    const QString name = text(row, WellModel::Name).toHtmlEscaped();
    if (text(row, WellModel::X).isEmpty())
      errors += tr("Please provide a valid x coordinate for the well: ") + name + "<br>";
    if (text(row, WellModel::Y).isEmpty())
      errors += tr("Please provide a valid y coordinate for the well: ") + name + "<br>";
  }
  return errors;
}

bool WellPositionAndUsageWizardPage::passes() {
  QString errors = missingCoordinates();
  QString notes;
  if (validationCheckBox->isChecked()) {
    const RateVerdict verdict = checkRates(rateSums(*store_.wellModel(), *store_.wellDemandModel()),
                                           store_.number(MeanFlowRate));
    if (verdict.differsFromDesign)
      store_.setValue(EnergyWizardDone, false);
    errors += verdict.errors;
    notes = verdict.notes;
  }
  if (!errors.isEmpty()) {
    errors = "<body style=color:red><center><b>" + errors + "</b></center>";
    if (!notes.isEmpty())
      errors += "<center><b>" + notes + "</b></center>";
    errors += "</body>";
  }
  showFeedback(errors);
  return errors.isEmpty();
}

void WellPositionAndUsageWizardPage::storeDerivedCells() {
  const WellModel& wells = *store_.wellModel();
  // A temperature change depends on whether the rate beside it is stored.
  for (const int column : {WellColumns::Rate, WellColumns::TemperatureChange}) {
    std::vector<TableCell> cells;
    for (int row = 0; row < wells.rowCount(); ++row)
      cells.push_back({row, column, wells.index(row, column).data(Qt::EditRole)});
    store_.setCells(ProjectTable::Well, cells);
  }
}

void WellPositionAndUsageWizardPage::designForLargestRate() {
  const WellModel& wells = *store_.wellModel();
  double largest = 0.0;
  for (int row = 0; row < wells.rowCount(); ++row)
    largest = std::max(largest, wells.index(row, WellModel::Rate).data(Qt::EditRole).toDouble());
  const auto v = [this](int id) { return store_.number(id); };
  if (!(largest > v(MeanFlowRate)))
    return;
  const DesignFormulas formulas;
  const double thickness = aquiferThickness(store_);
  store_.setValue(BMin, formulas.bMin(largest, v(SimulationTime), thickness, v(RadiusOfInfluence)));
  store_.setValue(AMin, formulas.aMin(largest, v(SimulationTime), thickness, v(GroundwaterVelocity),
                                      v(EffectivePorosity), v(DensityWater), v(DensityAquifer),
                                      v(HeatCapacityWater), v(HeatCapacityStone)));
  store_.setValue(DMin, formulas.dMin(v(NumberOfWells) * 0.5, largest, v(SimulationTime), thickness,
                                      v(GroundwaterVelocity)));
}

void WellPositionAndUsageWizardPage::placeWells() {
  if (!placing_.isPossible()) {
    sayRefusal(tr("The design gives no distance between wells yet."));
    return;
  }
  const int byHand = placing_.wellsPlacedByHand();
  if (byHand > 0 &&
      !userSaysYes(Severity::Information, programTitle,
                   tr("Wells that were placed by hand: %1. Move all wells to the recommended "
                      "places?")
                       .arg(byHand)))
    return;
  {
    const Data::UserStep step(store_, tr("Place wells"));
    placing_.place();
  }
  tableOfWellPositions->refresh();
  showWhetherPlacingCanBeUndone();
}

void WellPositionAndUsageWizardPage::undoPlacing() {
  {
    const Data::UserStep step(store_, tr("Take back the placing of wells"));
    placing_.undo();
  }
  showWhetherPlacingCanBeUndone();
  emitGraphicsUpdate();
}

void WellPositionAndUsageWizardPage::showWhetherPlacingCanBeUndone() {
  undoPlacingButton->setEnabled(placing_.canUndo());
}

void WellPositionAndUsageWizardPage::sayRefusal(const QString& reason) {
  showFeedback(feedbackText(reason.toHtmlEscaped()));
}

void WellPositionAndUsageWizardPage::showFeedback(const QString& text) {
  feedback_page1->setText(text);
  feedbackArea->setHidden(text.isEmpty());
}

void WellPositionAndUsageWizardPage::changeEvent(QEvent* event) {
  // The units of time are the page's actions, from the moment when it is entered first.
  if (event->type() == QEvent::LanguageChange && !extendTableView->actions().isEmpty()) {
    const QString feedback = feedback_page1->text();
    retranslateUi(this);
    showFeedback(feedback);
    setDynamicTexts();
    showDistances();
    demandModelChanged({}, {});
    for (SpreadsheetView* const table : {tableOfWellPositions, extendTableView})
      table->fitColumns();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
