#include "gui/energy/CoolingAndHeatingInstallationWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

namespace {

/// Checks the button of the hours if there are some, or else that of the power if there is one.
/// Buttons that exclude each other could not both be unchecked again.
void choose(QRadioButton* hours, bool hasHours, QRadioButton* power, bool hasPower) {
  for (QRadioButton* button : {hours, power})
    button->setAutoExclusive(false);
  hours->setChecked(hasHours);
  power->setChecked(hasPower && !hasHours);
  for (QRadioButton* button : {hours, power})
    button->setAutoExclusive(true);
}

} // namespace

CoolingAndHeatingInstallationWizardPage::CoolingAndHeatingInstallationWizardPage(
    const PageSurroundings& surroundings, QWizardPage* result, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store), fields_(surroundings.store, energyMessages),
      result_(result) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page6);
  for (const QRadioButton* button :
       {use_cooling_VLZ, use_cooling_power, use_heating_VLZ, use_heating_power})
    connect(button, &QRadioButton::toggled, this,
            &CoolingAndHeatingInstallationWizardPage::enableEdits);
  connect(HeatingGroupBox, &QGroupBox::toggled, this,
          &CoolingAndHeatingInstallationWizardPage::enableEdits);
  addFields();
  addTests();
}

void CoolingAndHeatingInstallationWizardPage::enableEdits() {
  const bool heats = HeatingGroupBox->isChecked();
  C_VLZ->setEnabled(use_cooling_VLZ->isChecked());
  C_Power->setEnabled(use_cooling_power->isChecked());
  H_VLZ->setEnabled(heats && use_heating_VLZ->isChecked());
  H_Power->setEnabled(heats && use_heating_power->isChecked());
}

void CoolingAndHeatingInstallationWizardPage::addFields() {
  constexpr NumberRule demand{0, 100000};
  constexpr NumberRule hours{0, 8784};
  constexpr NumberRule power{0, 100000};
  constexpr NumberRule change{0, 100};
  constexpr NumberRule performance{0, 6};
  const auto heatsWith = [this](const QRadioButton* button) {
    return [this, button] { return HeatingGroupBox->isChecked() && button->isChecked(); };
  };
  fields_.add(numberField(CoolingDemand, CoolingDemandYear, demand));
  fields_.add(numberField(CoolingTemperatureChange, C_DeltaT, change));
  fields_.add(numberField(CoolingPeakLoadDuration, C_VLZ, hours).writtenIf(use_cooling_VLZ));
  fields_.add(numberField(CoolingPower, C_Power, power).writtenIf([this] {
    return !use_cooling_VLZ->isChecked();
  }));
  fields_.add(invertedFlagField(CoolingOnly, HeatingGroupBox));
  fields_.add(numberField(HeatingDemand, HeatingDemandYear, demand).writtenIf(HeatingGroupBox));
  fields_.add(numberField(HeatingTemperatureChange, H_DeltaT, change).writtenIf(HeatingGroupBox));
  fields_.add(
      numberField(HeatingPeakLoadDuration, H_VLZ, hours).writtenIf(heatsWith(use_heating_VLZ)));
  fields_.add(numberField(HeatingPower, H_Power, power).writtenIf([this] {
    return HeatingGroupBox->isChecked() && !use_heating_VLZ->isChecked();
  }));
  fields_.add(numberField(SystemCop, H_NrYearWorking, performance).writtenIf(HeatingGroupBox));
}

void CoolingAndHeatingInstallationWizardPage::addTests() {
  const auto lacks = [](const QLineEdit* edit) { return [edit] { return lacksNumber(edit); }; };
  const auto lacksForHeating = [this](const QLineEdit* edit) {
    return [this, edit] { return HeatingGroupBox->isChecked() && lacksNumber(edit); };
  };
  fields_.test([this] { return use_cooling_VLZ->isChecked() && lacksNumber(C_VLZ); },
               QT_TRANSLATE_NOOP(
                   "EngerieVerbrauchWizard",
                   "Please provide a valid value for the cooling coefficient of full load hours."));
  // Required oddity: a power is asked for, here and for heating, also where the hours are used.
  fields_.test(lacks(C_Power),
               QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                                 "Please provide a valid value for the cooling power."));
  fields_.test(lacks(CoolingDemandYear),
               QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                                 "Please provide a valid value for the cooling demand."));
  fields_.test(
      lacks(C_DeltaT),
      QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                        "We need a valid value for the temperature change, used for cooling!"));
  // Required oddity: two of the messages about heating speak of cooling, and one is misspelled.
  fields_.test(
      [this] {
        return HeatingGroupBox->isChecked() && use_heating_VLZ->isChecked() && lacksNumber(H_VLZ);
      },
      QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                        "We need a valid value for the colling coefficent of full load hours!"));
  fields_.test(
      lacksForHeating(H_Power),
      QT_TRANSLATE_NOOP("EngerieVerbrauchWizard", "We need a valid value for the cooling power!"));
  fields_.test(
      lacksForHeating(HeatingDemandYear),
      QT_TRANSLATE_NOOP("EngerieVerbrauchWizard", "We need a valid value for the heating demand!"));
  fields_.test(
      lacksForHeating(H_DeltaT),
      QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                        "We need a valid value for the temperature change, used for heating!"));
  fields_.test(
      lacksForHeating(H_NrYearWorking),
      QT_TRANSLATE_NOOP(
          "EngerieVerbrauchWizard",
          "We need a valid value for the coefficient of performance (COP), used for heating!"));
}

void CoolingAndHeatingInstallationWizardPage::initializePage() {
  fields_.enter();
  const auto isAboveZero = [this](int id) { return fields_.saved(id).toDouble() > 0; };
  choose(use_cooling_VLZ, isAboveZero(CoolingPeakLoadDuration), use_cooling_power,
         isAboveZero(CoolingPower));
  choose(use_heating_VLZ, isAboveZero(HeatingPeakLoadDuration), use_heating_power,
         isAboveZero(HeatingPower));
}

void CoolingAndHeatingInstallationWizardPage::cleanupPage() {
  if (!PageFields::agreesToReset(QCoreApplication::translate(
          "EngerieVerbrauchWizard", "Reset all changes on the energy demand configuration?")))
    return;
  const auto isAboveZero = [this](int id) { return fields_.saved(id).toDouble() > 0; };
  // Required oddity: the cooling demand gets the heating demand back, not its own.
  fields_.restoreAs(CoolingDemand, HeatingDemand);
  fields_.restore({CoolingTemperatureChange});
  if (isAboveZero(CoolingPeakLoadDuration))
    fields_.restore({CoolingPeakLoadDuration});
  else
    store_.setValue(CoolingPower, fields_.saved(CoolingPower).toDouble());
  fields_.restore({CoolingOnly});
  if (!fields_.saved(CoolingOnly).toBool()) {
    fields_.restore({HeatingDemand, HeatingTemperatureChange});
    if (isAboveZero(HeatingPeakLoadDuration))
      fields_.restore({HeatingPeakLoadDuration});
    else
      fields_.restore({HeatingPower});
    fields_.restore({SystemCop});
  }
  fields_.clearFeedback();
}

bool CoolingAndHeatingInstallationWizardPage::validatePage() {
  return fields_.leave();
}

int CoolingAndHeatingInstallationWizardPage::nextId() const {
  return idOfPage(wizard(), result_, QWizardPage::nextId());
}

void CoolingAndHeatingInstallationWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
