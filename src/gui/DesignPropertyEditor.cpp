#include "gui/DesignPropertyEditor.h"

#include "design/ParameterId.h"
#include "gui/editor/ApplyCheck.h"
#include "gui/editor/TreeFilter.h"
#include "messages/UserMessages.h"
#include "project/ParameterTable.h"
#include "store/Manager.h"
#include "store/UserStep.h"

#include <QEvent>
#include <QIcon>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>
#include <cmath>
#include <optional>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr int pictureSize = 32;
constexpr int usualColumns = 48; ///< of average letters, as is the next
constexpr int fewestColumns = 32;

/// The groups whose names no wizard opens for.
constexpr int namedGroups[] = {GeneralWizardDone,
                               WellWizardDone,
                               EnergyWizardDone,
                               HeadingHeatingSpecification,
                               HeadingCoolingSpecification,
                               GraphicWizardDone,
                               HeadingViewOrigin,
                               SimulationWizardDone,
                               HeadingNumericalParameter,
                               HeadingGroundwaterModel,
                               HeadingHeatModel};

/// Required oddity: a value with the name of a group, such as the energy demand, counts as one.
bool isNameOfGroup(const QString& name) {
  return std::ranges::any_of(namedGroups,
                             [&name](int id) { return ParameterName::label(id) == name; });
}

/// The wizard that owns a value. Required oddity: the operation time and the number of demand
/// periods have none, although wizards ask for them.
std::optional<Wizard> ownerOf(int id) {
  switch (id) {
  case CellIncreaseFactor:
  case AbsTolGroundwater:
  case AbsTolHeat:
  case ThermalDispersivity:
  case ClosedLoop:
  case MinElementLength:
  case MaxElementLength:
  case RelTolGroundwater:
  case RelTolHeat:
    return Wizard::ExtendedSimulation;
  case EffectivePorosity:
  case HydraulicConductivity:
  case AquiferBasis:
  case AquiferThickness:
  case AquiferUnconfined:
  case GroundwaterGradient:
  case GroundwaterTable:
    return Wizard::Wells;
  case EnergyDemand:
  case Power:
  case CoolingDemand:
  case CoolingPeakLoadDuration:
  case CoolingPower:
  case CoolingTemperatureChange:
  case HeatingDemand:
  case HeatingPeakLoadDuration:
  case HeatingPower:
  case HeatingTemperatureChange:
  case SystemCop:
  case UsedTemperatureChange:
    return Wizard::Energy;
  case NumberOfWells:
  case ExchangeCaprock:
  case ExchangeBedrock:
  case GroundwaterFlowDirection:
  case UsedNumberOfElements:
    return Wizard::Simulation;
  case ViewOrigin:
  case BackgroundImage:
  case ViewX:
  case ViewY:
    return Wizard::Mapping;
  case ProjectName:
    return Wizard::General;
  default:
    return {};
  }
}

} // namespace

DesignPropertyEditor::DesignPropertyEditor(Data::Manager& store, QWidget* parent)
    : QWidget(parent), store_(store) {
  setupUi(this);
  tvr_label->setPixmap(QIcon(":/TVR/images/tvr.png").pixmap(pictureSize, pictureSize));
  tree_ = new DesignTree(this);
  aids_ = new TreeAids(*tree_, store, this);
  frameLayout->addWidget(aids_->filter());
  frameLayout->addWidget(tree_->browser());
  QTreeView* const view = tree_->browser()->view();
  aids_->filter()->setTabOrderBetween(stop_button, view);
  QWidget::setTabOrder(view, editButton);
  showProgress(false);
  showResultState({}, {});
  connectWidgets();
  // A file that is read changes many values at a time.
  refresh_.setSingleShot(true);
  refresh_.setInterval(0);
  connect(&refresh_, &QTimer::timeout, this, &DesignPropertyEditor::refresh);
  connect(&store, &Data::Manager::dataChanged, &refresh_, QOverload<>::of(&QTimer::start));
  initialisePropertyView();
}

DesignPropertyEditor::~DesignPropertyEditor() = default;

void DesignPropertyEditor::connectWidgets() {
  using Editor = DesignPropertyEditor;
  connect(editButton, &QAbstractButton::pressed, this, &Editor::enableEditing);
  connect(applyAndRunButton, &QAbstractButton::pressed, this, &Editor::applyAndRun);
  connect(stop_button, &QAbstractButton::pressed, this, &Editor::cancelProcess);
  connect(liveButton, &QAbstractButton::toggled, this, [this](bool isLive) {
    if (isLive)
      tellLive();
    else
      emit liveEnded();
  });
  QtTreePropertyBrowser* const browser = tree_->browser();
  connect(browser, &QtTreePropertyBrowser::collapsed, this, &Editor::itemCollapsed);
  connect(tree_->manager(), &QtVariantPropertyManager::valueChanged, this,
          &Editor::propertyChanged);
  connect(browser->view(), &QTreeView::doubleClicked, this, &Editor::doubleClicked);
}

void DesignPropertyEditor::showFile(const QString& fileName) {
  fileName_ = fileName;
  file_label->setText(fileName.isEmpty() ? tr("not saved") : fileName);
}

QString DesignPropertyEditor::shownFile() const {
  return file_label->text().remove(tr("not saved")).simplified();
}

void DesignPropertyEditor::showResultState(const QString& state, const QStringList& reasons) {
  result_label->setText(state);
  result_label->setToolTip(reasons.join('\n').toHtmlEscaped().replace('\n', "<br>"));
  result_label->setAccessibleDescription(reasons.join(' '));
  result_label->setVisible(!state.isEmpty());
}

void DesignPropertyEditor::showProgress(bool visible) {
  for (QWidget* const widget :
       {static_cast<QWidget*>(progressBar_total), //
        static_cast<QWidget*>(progressBar_step), static_cast<QWidget*>(message_label),
        static_cast<QWidget*>(stop_button)})
    widget->setVisible(visible);
}

void DesignPropertyEditor::initialisePropertyView() {
  nameRows();
  disableEditing();
}

void DesignPropertyEditor::nameRows() {
  tree_->retranslate();
  aids_->retranslate();
  tree_->browser()->view()->setAccessibleName(tr("Design of the project"));
}

void DesignPropertyEditor::showProject(DesignTree::Typed typed) {
  const QScopedValueRollback<bool> showing(isShowing_, true);
  tree_->show(store_, typed);
  tree_->remark(typedProject());
  aids_->update();
}

ProjectOverlay DesignPropertyEditor::typedProject() const {
  ProjectOverlay project(store_);
  layEdits(project, tree_->edits());
  return project;
}

void DesignPropertyEditor::updatePropertyView() {
  marks_.clear();
  showProject(DesignTree::Typed::Discarded);
}

void DesignPropertyEditor::refresh() {
  showProject(isEditing_ ? DesignTree::Typed::Kept : DesignTree::Typed::Discarded);
}

void DesignPropertyEditor::showEditing(bool isEditing) {
  using Editor = DesignPropertyEditor;
  isEditing_ = isEditing;
  editButton->disconnect(this);
  connect(editButton, &QAbstractButton::pressed, this,
          isEditing ? &Editor::disableEditing : &Editor::enableEditing);
  editButton->setText(isEditing ? tr("Stop editing") : tr("Edit"));
  tree_->setEditable(isEditing);
}

void DesignPropertyEditor::enableEditing() {
  showEditing(true);
}

void DesignPropertyEditor::disableEditing() {
  const bool wasLive = isEditing_ && liveButton->isChecked();
  showEditing(false);
  applyAndRunButton->setEnabled(false);
  updatePropertyView();
  if (wasLive)
    emit liveEnded();
}

void DesignPropertyEditor::checkApplyAndRun() {
  applyAndRunButton->setEnabled(false);
  const ApplyVerdict verdict = checkApply(typedProject());
  applyAndRunButton->setEnabled(verdict.isAllowed);
  if (!verdict.message.isEmpty())
    tellUser(Severity::Critical, programTitle, verdict.message, Qt::RichText);
}

void DesignPropertyEditor::tellLive() {
  if (isEditing_ && liveButton->isChecked() && applyAndRunButton->isEnabled())
    emit liveEdited(tree_->edits());
}

void DesignPropertyEditor::doubleClicked(const QModelIndex& index) {
  const QtBrowserItem* item = tree_->browser()->itemFor(index);
  if (!item || isNameOfGroup(item->property()->propertyName()) || item->property()->isEnabled())
    return;
  for (; item; item = item->parent())
    if (const auto wizard = ownerOf(DesignTree::idOf(item->property()))) {
      emit wizardRequested(*wizard);
      return;
    }
}

void DesignPropertyEditor::itemCollapsed(QtBrowserItem* item) {
  // A group whose wizard is complete does not stay collapsed.
  const bool isExpanded = item->parent() || store_.flag(DesignTree::idOf(item->property()));
  tree_->browser()->setExpanded(item, isExpanded);
}

void DesignPropertyEditor::propertyChanged(QtProperty* property, const QVariant& value) {
  if (isShowing_)
    return;
  {
    const QScopedValueRollback<bool> following(isShowing_, true);
    follow(DesignTree::idOf(property), value);
  }
  tree_->remark(typedProject());
  showConsequences();
  checkApplyAndRun();
  tellLive();
}

/// What a typed value brings about at once.
void DesignPropertyEditor::follow(int id, const QVariant& value) {
  switch (id) {
  case NumberOfWells:
  case NumberOfDemandsPerYear:
    store_.setValue(id, value);
    emit wizardRequested(Wizard::Simulation);
    break;
  case AquiferBasis:
  case GroundwaterTable:
    deriveThickness();
    break;
  case AquiferUnconfined:
    store_.setValue(id, value);
    refresh();
    deriveThickness();
    break;
  case BackgroundImage:
    if (value.toBool() && store_.text(BackgroundImageFile).isEmpty()) {
      store_.setValue(id, value);
      emit wizardRequested(Wizard::Mapping);
    }
    break;
  case UsedNumberOfElements:
    store_.setValue(MaxNumberOfElements, value);
    break;
  default:
    break;
  }
}

void DesignPropertyEditor::deriveThickness() {
  const std::map<int, QtProperty*>& properties = tree_->propertyOfId();
  const auto number = [&properties](int id) { return properties.at(id)->value().toDouble(); };
  if (properties.at(AquiferUnconfined)->value().toBool())
    properties.at(AquiferThickness)
        ->setValue(std::abs(number(GroundwaterTable) - number(AquiferBasis)));
}

QColor DesignPropertyEditor::flashColour() const {
  constexpr int opacity = 90;
  QColor colour = palette().color(QPalette::Highlight);
  colour.setAlpha(opacity);
  return colour;
}

/// What rules are going to make of the values that were typed.
void DesignPropertyEditor::showConsequences() {
  marks_.clear();
  if (!trial_)
    trial_ = std::make_unique<Data::Manager>();
  trial_->setProject(store_.project());
  applyEdits(*trial_, tree_->edits());
  for (const auto& [property, text] : tree_->consequences(*trial_))
    marks_.mark(property, tr("→ %1", "what a value is going to be").arg(text),
                tr("becomes %1").arg(text), flashColour());
}

void DesignPropertyEditor::applyAndRun() {
  {
    const Data::UserStep step(store_, tr("Change design properties"));
    applyEdits(store_, tree_->edits());
  }
  std::vector<std::pair<QtProperty*, QString>> before;
  for (const auto& [property, text] : tree_->consequences(store_))
    before.emplace_back(property, property->valueText());
  disableEditing();
  for (const auto& [property, text] : before)
    marks_.mark(property, tr("was %1").arg(text), tr("was %1").arg(text), flashColour());
  store_.setValue(SimulationUpToDate, false); // whoever hears of it starts the run
}

void DesignPropertyEditor::retranslate() {
  const QString message = message_label->text();
  retranslateUi(this);
  if (!message_label->isHidden())
    message_label->setText(message); // of the run that goes on
  editButton->setText(isEditing_ ? tr("Stop editing") : tr("Edit"));
  showFile(fileName_);
  nameRows();
}

void DesignPropertyEditor::setOrigins(const std::shared_ptr<const Data::ValueOrigins>& origins) {
  aids_->setOrigins(origins);
}

QSize DesignPropertyEditor::sizeHint() const {
  return {fontMetrics().averageCharWidth() * usualColumns, QWidget::sizeHint().height()};
}

QSize DesignPropertyEditor::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * fewestColumns, QWidget::minimumSizeHint().height()};
}

void DesignPropertyEditor::cancelProcess() {
  emit processCanceled();
}

void DesignPropertyEditor::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    retranslate();
  QWidget::changeEvent(event);
}

} // namespace TVR::GUI
