#include "gui/DesignPropertyEditor.h"

#include "project/ParameterTable.h"
#include "store/Manager.h"

#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QTreeWidgetItem>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr int pictureSize = 32;
constexpr int significantDigits = 6;
constexpr int usualColumns = 48; ///< of average letters, as is the next
constexpr int fewestColumns = 26;

constexpr int mainParameters[] = {ProjectName,      ProjectLocation,       EnergyDemand,
                                  MaximumFlowRate,  NumberOfWells,         UsedTemperatureChange,
                                  AquiferThickness, HydraulicConductivity, GroundwaterGradient,
                                  AquiferPorosity,  ReferenceTemperature,  SimulationTime,
                                  MaximumExtent3K};

/// A number as forms show it. One that may span decades stands as short as it can.
QString shownNumber(const ParameterRow& row, double value) {
  if (!row.has(ReadsAsShown))
    value = row.toShown(value);
  return row.shown.format == 'f' ? QString::number(value, 'f', row.shown.decimals)
                                 : QString::number(value, 'g', significantDigits);
}

QString shownValue(const ParameterRow& row, const QVariant& value) {
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  if (!isNumber || row.kind == ParameterKind::Text)
    return value.toString();
  return (shownNumber(row, number) + ' ' + QString::fromUtf8(row.shown.unit)).trimmed();
}

} // namespace

DesignPropertyEditor::DesignPropertyEditor(const Data::Manager& store, QWidget* parent)
    : QWidget(parent), store_(store) {
  setupUi(this);
  tvr_label->setPixmap(QIcon(":/TVR/images/tvr.png").pixmap(pictureSize, pictureSize));
  // A label has a tool tip and gives its room to the value.
  properties->header()->setStretchLastSection(false);
  properties->header()->setMinimumSectionSize(fontMetrics().averageCharWidth());
  properties->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  properties->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  showProgress(false);
  connect(stop_button, &QAbstractButton::pressed, this, &DesignPropertyEditor::cancelProcess);
  // A file that is read changes many values at a time.
  refresh_.setSingleShot(true);
  refresh_.setInterval(0);
  connect(&refresh_, &QTimer::timeout, this, &DesignPropertyEditor::updatePropertyView);
  connect(&store, &Data::Manager::dataChanged, &refresh_, QOverload<>::of(&QTimer::start));
  updatePropertyView();
}

void DesignPropertyEditor::showFile(const QString& fileName) {
  fileName_ = fileName;
  file_label->setText(fileName.isEmpty() ? tr("not saved") : fileName);
}

QString DesignPropertyEditor::shownFile() const {
  return file_label->text().remove(tr("not saved")).simplified();
}

void DesignPropertyEditor::showProgress(bool visible) {
  for (QWidget* const widget :
       {static_cast<QWidget*>(progressBar_total), //
        static_cast<QWidget*>(progressBar_step), static_cast<QWidget*>(message_label),
        static_cast<QWidget*>(stop_button)})
    widget->setVisible(visible);
}

void DesignPropertyEditor::updatePropertyView() {
  properties->clear();
  for (const int id : mainParameters) {
    const QString label = ParameterName::label(id);
    auto* const item =
        new QTreeWidgetItem(properties, {label, shownValue(parameterRow(id), store_.value(id))});
    item->setToolTip(0, label);
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  }
}

void DesignPropertyEditor::retranslate() {
  const QString message = message_label->text();
  retranslateUi(this);
  if (!message_label->isHidden())
    message_label->setText(message); // of the run that goes on
  showFile(fileName_);
  updatePropertyView();
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
