#include "gui/wells/ProvidedWellsWizardPage.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "gui/wells/WellTexts.h"
#include "messages/UserMessages.h"
#include "store/Manager.h"

#include <QEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double largestDiameter = 1000; ///< [mm]

} // namespace

ProvidedWellsWizardPage::ProvidedWellsWizardPage(const PageSurroundings& surroundings,
                                                 QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store),
      fields_(surroundings.store, WellTexts::context) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page1);
  connect(Calculate, &QRadioButton::toggled, this,
          &ProvidedWellsWizardPage::toggleWellSpecification);
  connect(ProvideValues, &QGroupBox::toggled, this,
          &ProvidedWellsWizardPage::toggleWellSpecification);
  connect(DiameterUnit, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
    limitDiameter();
    FilterDiameter->setModified(true); // the same digits are another diameter
  });
  addFields();
  addTests();
}

void ProvidedWellsWizardPage::addFields() {
  constexpr NumberRule metres{0, 1000};
  // The remembered value of another parameter in the place of one that is too small to count.
  const auto orElse = [this](double least, int other) {
    return [this, least, other](const QVariant& stored) {
      return stored.toDouble() < least ? fields_.saved(other) : stored;
    };
  };
  fields_.add(countField(NumberOfWellsProvided, MaxWell).shownAs([this](const QVariant&) {
    return static_cast<int>(fields_.saved(NumberOfWells).toDouble() * 0.5);
  }));
  fields_.add(flagField(SuperposeDrawdown, superposition_check_box));
  fields_.add(numberField(DistanceBetweenWells, DistanceWell, metres).shownAs(orElse(1, DMinUsed)));
  fields_.add(numberField(WellDepth, Depth, metres).shownAs([this](const QVariant& stored) {
    return std::max(stored.toDouble(), fields_.saved(AquiferBasis).toDouble());
  }));
  fields_.add(
      numberField(FilterLengthProvided, FilterLength, metres).shownAs(orElse(1, AquiferThickness)));
  fields_.add(diameterField().shownAs(orElse(0.01, Parameter::FilterDiameter)));
  // Required oddity: the check mark comes from the superposition, and goes to its own parameter.
  fields_.add(
      flagField(CheckWellConstruction, CheckConceivabillity).shownAs([this](const QVariant&) {
        return fields_.saved(SuperposeDrawdown);
      }));
}

PageField ProvidedWellsWizardPage::diameterField() {
  PageField field = numberField(FilterDiameterProvided, FilterDiameter, {});
  field.prepare = [this] { limitDiameter(); };
  field.show = [this, show = field.show](const QVariant& stored) {
    show(stored.toDouble() / millimetresPerUnit());
  };
  field.entered = [this, entered = field.entered] {
    return entered().toDouble() * millimetresPerUnit();
  };
  return field;
}

double ProvidedWellsWizardPage::millimetresPerUnit() const {
  return DiameterUnit->currentIndex() == 0 ? 1 : millimetresPerInch;
}

void ProvidedWellsWizardPage::limitDiameter() {
  limitToNumbers(FilterDiameter, {.minimum = 0, .maximum = largestDiameter / millimetresPerUnit()});
}

void ProvidedWellsWizardPage::addTests() {
  const auto lacks = [this](const QLineEdit* edit) {
    return [this, edit] { return ProvideValues->isChecked() && lacksNumber(edit); };
  };
  fields_.test(lacks(DistanceWell),
               QT_TRANSLATE_NOOP("BrunnenWizard",
                                 "Please provide a valid value for the distance between wells."));
  fields_.test(lacks(Depth), QT_TRANSLATE_NOOP("BrunnenWizard",
                                               "Please provide a valid value for the well depth."));
  fields_.test(
      lacks(FilterLength),
      QT_TRANSLATE_NOOP("BrunnenWizard", "Please provide a valid value for the filter length."));
  fields_.test(
      [this] { return ProvideValues->isChecked() && numberIn(FilterLength) > numberIn(Depth); },
      QT_TRANSLATE_NOOP(
          "BrunnenWizard",
          "Please provide a valid value for the well depth and/or the filter length."));
  fields_.test(
      lacks(FilterDiameter),
      QT_TRANSLATE_NOOP("BrunnenWizard", "Please provide a valid value for the filter diameter."));
}

void ProvidedWellsWizardPage::initializePage() {
  fields_.save({CalculateWellConstruction, NumberOfWells, AquiferBasis, AquiferThickness,
                Parameter::FilterDiameter, DMinUsed});
  const bool isCalculated = fields_.saved(CalculateWellConstruction).toBool();
  Calculate->setChecked(isCalculated);
  ProvideValues->setChecked(!isCalculated);
  fields_.show();
}

void ProvidedWellsWizardPage::cleanupPage() {
  fields_.reset(WellTexts::tr("Reset all changes of the well configuration?"),
                {CalculateWellConstruction, NumberOfWells, DistanceBetweenWells, WellDepth,
                 AquiferBasis, FilterLengthProvided, AquiferThickness, FilterDiameterProvided,
                 Parameter::FilterDiameter, SuperposeDrawdown});
}

bool ProvidedWellsWizardPage::validatePage() {
  if (!fields_.pass())
    return false;
  if (Calculate->isChecked())
    return true; // Required oddity: not even the choice is written
  fields_.write();
  const bool isRefused =
      CheckConceivabillity->isChecked() && !store_.value(ProvidedWellConfigurationOk).toBool();
  if (isRefused && userSavesProposal(programTitle, proposal()))
    adoptProposal();
  else
    forceOnDesign();
  store_.setValue(WellRadius,
                  DesignFormulas().wellRadius(store_.value(FilterDiameterProvided).toDouble()));
  return true;
}

QString ProvidedWellsWizardPage::proposal() const {
  const auto number = [this](int id) {
    return QString::number(store_.value(id).toDouble(), 'f', 2);
  };
  const int pairs = static_cast<int>(store_.value(NumberOfWells).toDouble() * 0.5);
  return WellTexts::tr("<b>The configuration is incorrect.</b><br>") +
         WellTexts::tr("The corrected configuration is:<br>") + "<table border=\"0\">" +
         QStringLiteral("<tr><td align=\"left\">%1</td><td align=\"right\">%2</td></tr>")
             .arg(WellTexts::tr("Number of wells"))
             .arg(pairs) +
         QStringLiteral("<tr><td align=\"left\">%1</td><td align=\"right\">%2 m</td></tr>")
             .arg(WellTexts::tr("Filter length"), number(Parameter::FilterLength)) +
         QStringLiteral("<tr><td align=\"left\">%1</td><td align=\"right\">%2 mm</td></tr>")
             .arg(WellTexts::tr("Filter diameter"), number(Parameter::FilterDiameter)) +
         "</table><br><br>" +
         WellTexts::tr("With a maximum drawdown in the well of %1 m.<br>").arg(number(Drawdown)) +
         WellTexts::tr("Should the configuration be changed?");
}

void ProvidedWellsWizardPage::adoptProposal() {
  store_.setValue(NumberOfWellsProvided, store_.count(NumberOfWells) / 2);
  store_.setValue(FilterDiameterProvided, store_.value(Parameter::FilterDiameter));
  store_.setValue(FilterLengthProvided, store_.value(Parameter::FilterLength));
}

void ProvidedWellsWizardPage::forceOnDesign() {
  store_.setValue(NumberOfWells, store_.count(NumberOfWellsProvided) * 2);
  store_.setValue(RadiusOfInfluence, store_.value(DistanceBetweenWells));
  store_.setValue(Parameter::FilterDiameter, store_.value(FilterDiameterProvided));
  store_.setValue(Parameter::FilterLength, store_.value(FilterLengthProvided));
}

void ProvidedWellsWizardPage::toggleWellSpecification() {
  const QSignalBlocker calculated(Calculate);
  const QSignalBlocker provided(ProvideValues);
  if (sender() == Calculate)
    ProvideValues->setChecked(!Calculate->isChecked());
  else
    Calculate->setChecked(!ProvideValues->isChecked());
}

void ProvidedWellsWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
