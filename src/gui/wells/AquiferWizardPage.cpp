#include "gui/wells/AquiferWizardPage.h"

#include "design/ParameterId.h"
#include "gui/wells/WellTexts.h"
#include "store/Manager.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QSignalBlocker>

namespace TVR::GUI {

using namespace Parameter;

namespace {

/// What is shown in the place of a value that nobody has entered yet.
auto insteadOfZero(double value) {
  return [value](const QVariant& stored) { return stored.toDouble() == 0 ? value : stored; };
}

} // namespace

AquiferWizardPage::AquiferWizardPage(const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store),
      fields_(surroundings.store, WellTexts::context) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page0);
  connect(confinedBox, &QGroupBox::toggled, this, &AquiferWizardPage::toggleType);
  connect(unconfinedBox, &QGroupBox::toggled, this, &AquiferWizardPage::toggleType);
  connect(knownConductivityAndPorosity, &QGroupBox::toggled, providedConductivityAndPorosity,
          &QWidget::setDisabled);
  connect(AquifierMaterial, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &AquiferWizardPage::showMaterialValues);
  addFields();
  addTests();
}

void AquiferWizardPage::addFields() {
  constexpr NumberRule metres{0, 1000};
  const auto takesMaterial = [this] { return !knownConductivityAndPorosity->isChecked(); };
  fields_.add(numberField(GroundwaterGradient, GW_gradient,
                          {.minimum = 0, .maximum = 100, .decimals = 4, .shown = 4}));
  fields_.add(flagField(AquiferUnconfined, unconfinedBox));
  fields_.add(numberField(AquiferThickness, GW_thickness, metres).writtenIf(confinedBox));
  fields_.add(numberField(GroundwaterTable, GW_pegel, metres).writtenIf(unconfinedBox));
  fields_.add(numberField(AquiferBasis, GW_basis, metres).writtenIf(unconfinedBox));
  fields_.add(invertedFlagField(UseProvidedAquiferProperties, knownConductivityAndPorosity));
  fields_.add(numberField(HydraulicConductivity, GW_conductivity,
                          {.minimum = 0, .maximum = 1, .decimals = 5, .format = 'e', .shown = 1})
                  .shownAs(insteadOfZero(0.001))
                  .writtenIf(knownConductivityAndPorosity));
  fields_.add(numberField(EffectivePorosity, GW_porosity,
                          {.minimum = 0, .maximum = 100, .shown = 1, .factor = 100})
                  .shownAs(insteadOfZero(0.2))
                  .writtenIf(knownConductivityAndPorosity));
  PageField material = choiceField(store_, AquiferMaterial, AquifierMaterial);
  material.prepare = [this] { fillMaterials(); };
  fields_.add(std::move(material).writtenIf(takesMaterial));
}

void AquiferWizardPage::addTests() {
  const auto lacks = [](const QLineEdit* edit) { return [edit] { return lacksNumber(edit); }; };
  const auto lacksIn = [](const QGroupBox* box, const QLineEdit* edit) {
    return [box, edit] { return box->isChecked() && lacksNumber(edit); };
  };
  fields_.test(lacks(GW_gradient),
               QT_TRANSLATE_NOOP("BrunnenWizard",
                                 "Please provide a valid value for the hydraulic gradient."));
  fields_.test(lacksIn(confinedBox, GW_thickness),
               QT_TRANSLATE_NOOP("BrunnenWizard",
                                 "Please provide a valid value for the aquifer thickness."));
  fields_.test(
      lacksIn(unconfinedBox, GW_pegel),
      QT_TRANSLATE_NOOP("BrunnenWizard",
                        "Please provide a valid value for the depth of the groundwater table."));
  fields_.test(
      lacksIn(unconfinedBox, GW_basis),
      QT_TRANSLATE_NOOP("BrunnenWizard",
                        "Please provide a valid value for the depth of the aquifer base."));
  fields_.test(
      [this] { return unconfinedBox->isChecked() && numberIn(GW_pegel) > numberIn(GW_basis); },
      QT_TRANSLATE_NOOP("BrunnenWizard", "Please provide a valid value for the depth of the "
                                         "aquifer base or of the groundwater table."));
  fields_.test(lacksIn(knownConductivityAndPorosity, GW_conductivity),
               QT_TRANSLATE_NOOP("BrunnenWizard",
                                 "Please provide a valid value for the hydraulic conductivity."));
  fields_.test(
      lacksIn(knownConductivityAndPorosity, GW_porosity),
      QT_TRANSLATE_NOOP("BrunnenWizard", "Please provide a valid value for the aquifer porosity."));
}

void AquiferWizardPage::initializePage() {
  fields_.enter();
}

void AquiferWizardPage::cleanupPage() {
  // Required oddity: the material comes last. Wherever there is one, it brings its own conductivity
  // and porosity along, and those that were entered are not put back.
  fields_.reset(WellTexts::tr("Reset all changes on the aquifer parameter?"),
                {GroundwaterGradient, AquiferUnconfined, GroundwaterTable, AquiferBasis,
                 AquiferThickness, UseProvidedAquiferProperties, HydraulicConductivity,
                 EffectivePorosity, AquiferMaterial});
}

bool AquiferWizardPage::validatePage() {
  return fields_.leave();
}

void AquiferWizardPage::toggleType() {
  const QSignalBlocker confined(confinedBox);
  const QSignalBlocker unconfined(unconfinedBox);
  if (sender() == confinedBox)
    unconfinedBox->setChecked(!confinedBox->isChecked());
  else
    confinedBox->setChecked(!unconfinedBox->isChecked());
}

void AquiferWizardPage::fillMaterials() {
  fillChoices(store_, AquiferMaterial, AquifierMaterial);
  for (int i = 0; i < AquifierMaterial->count(); ++i) {
    const QString text = tr("%1 (%2)").arg(AquifierMaterial->itemText(i),
                                           conductivityOf(AquifierMaterial->itemData(i).toInt()));
    AquifierMaterial->setItemText(i, text);
    AquifierMaterial->setItemData(i, text, Qt::ToolTipRole);
  }
  QAbstractItemView* const list = AquifierMaterial->view();
  list->setMinimumWidth(list->sizeHintForColumn(0)); // wider than the box where it has to be
  showMaterialValues();
}

QString AquiferWizardPage::conductivityOf(int material) const {
  const auto number = [this, material](int id) {
    return QString::number(store_.referenceValue(id, material).toDouble(), 'g', 2);
  };
  return tr("%1 to %2 m/s").arg(number(HydraulicConductivityMin), number(HydraulicConductivityMax));
}

void AquiferWizardPage::showMaterialValues() {
  const int material = AquifierMaterial->currentData().toInt();
  materialValues->setText(tr("Hydraulic conductivity %1, porosity %2 %")
                              .arg(conductivityOf(material),
                                   store_.referenceValue(MaterialPorosity, material).toString()));
}

void AquiferWizardPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    fillMaterials();
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
    showMaterialValues();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
