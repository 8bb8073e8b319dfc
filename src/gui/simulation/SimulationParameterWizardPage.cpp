#include "gui/simulation/SimulationParameterWizardPage.h"

#include "design/ParameterId.h"
#include "gui/mapping/CompassWidget.h"
#include "gui/simulation/SimulateButton.h"
#include "project/Units.h"
#include "store/Manager.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr std::initializer_list<int> resetOrder{GroundwaterFlowDirection, SimulationTime,
                                                AdditionalIsotherm,       MaxNumberOfElements,
                                                ExchangeBedrock,          ExchangeCaprock};

/// The years of a box, as seconds; a time that is none of its items shows nothing, and stays.
PageField yearsField(int id, QComboBox* box) {
  PageField field;
  field.id = id;
  field.show = [box](const QVariant& value) {
    const double years = value.toDouble() / secondsPerHour / daysPerYear / hoursPerDay;
    const QString text = QString::number(static_cast<int>(years));
    box->setCurrentIndex(box->findData(text, Qt::DisplayRole, Qt::MatchExactly));
  };
  field.entered = [box] {
    return box->currentText().toInt() * secondsPerHour * daysPerYear * hoursPerDay;
  };
  field.isWritten = [box] {
    bool isNumber = false;
    box->currentText().toInt(&isNumber);
    return isNumber;
  };
  return field;
}

/// The temperature change of one of the items behind the first, or none.
PageField isothermField(int id, QComboBox* box) {
  PageField field;
  field.id = id;
  field.show = [box](const QVariant& value) {
    const double change = value.toDouble();
    box->setCurrentIndex(0);
    for (int i = 1; change > 0 && i < box->count(); ++i)
      if (box->itemText(i).toDouble() == change)
        box->setCurrentIndex(i);
  };
  field.entered = [box] {
    bool isNumber = false;
    const double change = box->currentText().toDouble(&isNumber);
    return isNumber ? change : -1;
  };
  return field;
}

} // namespace

SimulationParameterWizardPage::SimulationParameterWizardPage(const PageSurroundings& surroundings,
                                                             QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store),
      fields_(surroundings.store, "SimulationParameterWizardPage"),
      compass_(new CompassWidget(this, true)) {
  setupUi(this);
  addCompass();
  addFields();
}

void SimulationParameterWizardPage::addCompass() {
  compass_->setAccessibleName(tr("Groundwater flows towards"));
  compass_->setToolTip(tr("Press or drag to where the groundwater flows; arrow keys turn it too"));
  compass_->setWhatsThis(
      tr("The needle tapers in the direction of flow. Arrow keys turn it by a degree, Page Up and "
         "Page Down by ten, Home to north."));
  auto* const layout = new QVBoxLayout(compassFrame);
  layout->setContentsMargins({});
  layout->addWidget(compass_);
  QWidget::setTabOrder(FlowDirection, compass_);
  connect(FlowDirection, QOverload<int>::of(&QSpinBox::valueChanged), compass_,
          &CompassWidget::setAngle);
  connect(compass_, &CompassWidget::angleChanged, FlowDirection, &QSpinBox::setValue);
}

void SimulationParameterWizardPage::addFields() {
  fields_.add(isothermField(AdditionalIsotherm, Isotherms));
  fields_.add(countField(GroundwaterFlowDirection, FlowDirection));
  fields_.add(yearsField(Parameter::SimulationTime, SimulationTime));
  fields_.add(countField(MaxNumberOfElements, FVelements));
  // Required oddity: both are written whatever the box around them shows.
  fields_.add(flagField(ExchangeBedrock, bedrockEnergyExchangeCheckBox));
  fields_.add(flagField(ExchangeCaprock, caprockEnergyExchangeCheckBox));
}

void SimulationParameterWizardPage::initializePage() {
  finishWithSimulation(wizard());
  fields_.enter();
  compass_->setAngle(FlowDirection->value());
  EnergyExchangeGroupBox->setChecked(bedrockEnergyExchangeCheckBox->isChecked() ||
                                     caprockEnergyExchangeCheckBox->isChecked());
}

bool SimulationParameterWizardPage::isChanged(int id) const {
  const QVariant before = fields_.saved(id);
  const QVariant now = store_.value(id);
  return id == AdditionalIsotherm ? before.toDouble() != now.toDouble()
                                  : nearestWhole(before) != nearestWhole(now);
}

void SimulationParameterWizardPage::cleanupPage() {
  const auto changed = [this](int id) { return isChanged(id); };
  if (std::any_of(resetOrder.begin(), resetOrder.end(), changed))
    fields_.reset(tr("Reset all changes on the simulation parameter?"), resetOrder);
}

bool SimulationParameterWizardPage::validatePage() {
  return fields_.leave();
}

void SimulationParameterWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    finishWithSimulation(wizard());
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
