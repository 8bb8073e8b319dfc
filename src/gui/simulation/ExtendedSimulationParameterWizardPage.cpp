#include "gui/simulation/ExtendedSimulationParameterWizardPage.h"

#include "design/ParameterId.h"
#include "gui/simulation/SimulateButton.h"
#include "store/Manager.h"

#include <QEvent>
#include <QFileDialog>

#include <algorithm>

namespace TVR::GUI {

using namespace Parameter;

ExtendedSimulationParameterWizardPage::ExtendedSimulationParameterWizardPage(
    const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store),
      fields_(surroundings.store, "SimulationParameterWizardPage") {
  setupUi(this);
  fields_.showMessagesIn(feedback_page2);
  connect(selectWellOutputFile, &QAbstractButton::clicked, this,
          &ExtendedSimulationParameterWizardPage::setWellOutputFile);
  connect(selectTecplotOutputFile, &QAbstractButton::clicked, this,
          &ExtendedSimulationParameterWizardPage::setTecplotOutputFile);
  addFields();
}

void ExtendedSimulationParameterWizardPage::addFields() {
  const auto tolerance = [](double largest) {
    return NumberRule{
        .minimum = 1e-12, .maximum = largest, .decimals = 12, .format = 'e', .shown = 1};
  };
  constexpr double largestOfGroundwater = 0.1;
  constexpr double largestOfHeat = 0.001;

  PageField dispersivity = numberField(ThermalDispersivity, Dispersion_value, {0.1, 50});
  dispersivity.entered = [this, entered = dispersivity.entered] {
    return heatDispersionUsed->isChecked() ? entered() : QVariant(0.0);
  };
  fields_.add(std::move(dispersivity));
  PageField closedLoop = flagField(ClosedLoop, useClosedWellLoop);
  closedLoop.show = [this](const QVariant& value) {
    useClosedWellLoop->setChecked(value.toDouble() > 0);
  };
  fields_.add(std::move(closedLoop));
  fields_.add(flagField(WriteTecplotOutput, writeTecplotOutput));
  fields_.add(textField(TecplotOutputFile, tecplotOutputFilename));
  fields_.add(flagField(WriteWellOutput, writeWellOutput));
  fields_.add(textField(WellOutputFile, wellOutputFilename));
  fields_.add(flagField(UserDefinedGroundwaterTolerances, gw_groupBox));
  fields_.add(
      numberField(RelTolGroundwater, relativ_error_groundwater, tolerance(largestOfGroundwater))
          .writtenIf(gw_groupBox));
  fields_.add(numberField(AbsTolGroundwater, abs_error_groundwater, tolerance(largestOfGroundwater))
                  .writtenIf(gw_groupBox));
  // Required oddity: what is written for the heat flow is the check mark of the groundwater flow.
  PageField heat = flagField(UserDefinedHeatTolerances, heat_groupBox);
  heat.entered = [this] { return gw_groupBox->isChecked(); };
  fields_.add(std::move(heat));
  fields_.add(numberField(RelTolHeat, relativ_error_heat, tolerance(largestOfHeat))
                  .writtenIf(heat_groupBox));
  fields_.add(
      numberField(AbsTolHeat, abs_error_heat, tolerance(largestOfHeat)).writtenIf(heat_groupBox));
  fields_.add(numberField(CellIncreaseFactor, cellIncreaseFactor,
                          {.minimum = 1, .maximum = 100, .decimals = 0, .shown = 0}));
  fields_.add(numberField(MinElementLength, minCellWidth, {0, 10}));
  fields_.add(numberField(MaxElementLength, maxCellWidth, {0, 1000}));
}

void ExtendedSimulationParameterWizardPage::initializePage() {
  finishWithSimulation(wizard());
  fields_.enter();
  heatDispersionUsed->setChecked(fields_.saved(ThermalDispersivity).toDouble() > 0);
}

bool ExtendedSimulationParameterWizardPage::isChanged() const {
  const auto differ = [this](const std::vector<int>& ids, auto read) {
    return std::any_of(ids.begin(), ids.end(), [this, read](int id) {
      return read(fields_.saved(id)) != read(store_.value(id));
    });
  };
  return differ({ThermalDispersivity, RelTolGroundwater, AbsTolGroundwater, RelTolHeat, AbsTolHeat,
                 CellIncreaseFactor, MinElementLength, MaxElementLength},
                [](const QVariant& value) { return value.toDouble(); }) ||
         differ({ClosedLoop, WriteTecplotOutput, WriteWellOutput, UserDefinedGroundwaterTolerances,
                 UserDefinedHeatTolerances},
                [](const QVariant& value) { return value.toBool(); }) ||
         differ({WellOutputFile, TecplotOutputFile},
                [](const QVariant& value) { return value.toString(); });
}

void ExtendedSimulationParameterWizardPage::cleanupPage() {
  if (isChanged())
    fields_.reset(tr("Reset all changes on the extended simulation parameter?"));
}

bool ExtendedSimulationParameterWizardPage::validatePage() {
  fields_.leave();
  store_.setValue(SimulationWizardDone, true);
  store_.setValue(SimulationUpToDate, false);
  return true;
}

void ExtendedSimulationParameterWizardPage::setWellOutputFile() {
  const QString file =
      QFileDialog::getSaveFileName(this, tr("Select output file name"), wellOutputFilename->text());
  if (!file.isEmpty())
    wellOutputFilename->setText(file);
}

void ExtendedSimulationParameterWizardPage::setTecplotOutputFile() {
  const QString folder = QFileDialog::getExistingDirectory(
      this, tr("Select output file name"), tecplotOutputFilename->text(),
      QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
  if (!folder.isEmpty())
    tecplotOutputFilename->setText(folder);
}

void ExtendedSimulationParameterWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    finishWithSimulation(wizard());
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
