#include "gui/delegates/QuantityDelegate.h"

#include <QDoubleSpinBox>
#include <QLocale>
#include <QPainter>

namespace TVR {

namespace {

constexpr Qt::ItemFlags allFlags = Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;

double shownValue(const CellQuantity& quantity, const QModelIndex& index) {
  return quantity.shown(index.data(quantity.role).toDouble());
}

QString cellText(const CellQuantity& quantity, const QModelIndex& index) {
  if (quantity.ofInjection && (index.flags() & allFlags) != allFlags)
    return {};
  const QString number =
      QString::number(shownValue(quantity, index), quantity.format, quantity.decimals);
  return QStringLiteral(" %1 %2").arg(number, quantity.unit);
}

} // namespace

CellQuantity rateQuantity() {
  constexpr double most = 3001.0;
  CellQuantity rate;
  rate.shown = [](double value) { return value * 60.0 * 1000.0; };
  rate.stored = [](double shown) { return shown / 60.0 / 1000.0; };
  rate.unit = QStringLiteral("l/min");
  rate.decimals = 3;
  rate.editorDecimals = 4;
  rate.minimum = -most;
  rate.maximum = most;
  return rate;
}

CellQuantity temperatureChangeQuantity() {
  constexpr double most = 99.0;
  CellQuantity change;
  change.role = Qt::DisplayRole;
  change.unit = QStringLiteral("K");
  change.format = 'g';
  change.decimals = QLocale::FloatingPointShortest;
  change.minimum = -most;
  change.maximum = most;
  change.ofInjection = true;
  return change;
}

QString QuantityDelegate::shownText(const QModelIndex& index) const {
  const auto shown = quantity(index.column());
  return shown ? cellText(*shown, index).trimmed() : index.data().toString();
}

void QuantityDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const auto shown = quantity(index.column());
  if (!shown) {
    QItemDelegate::paint(painter, option, index);
    return;
  }
  painter->save();
  drawBackground(painter, option, index);
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
  painter->drawText(option.rect, Qt::AlignLeft | Qt::AlignVCenter, cellText(*shown, index));
  drawFocus(painter, option, option.rect);
  painter->restore();
}

QSize QuantityDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QSize size = QItemDelegate::sizeHint(option, index);
  if (const auto shown = quantity(index.column()))
    size.setWidth(option.fontMetrics.horizontalAdvance(cellText(*shown, index) + ' '));
  return size;
}

void QuantityDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const auto shown = quantity(index.column());
  auto* const box = qobject_cast<QDoubleSpinBox*>(editor);
  if (!shown || !box) {
    QItemDelegate::setEditorData(editor, index);
    return;
  }
  box->setSuffix(' ' + shown->unit);
  if (shown->editorDecimals)
    box->setDecimals(*shown->editorDecimals);
  if (shown->maximum)
    box->setMaximum(*shown->maximum);
  if (shown->minimum)
    box->setMinimum(*shown->minimum);
  box->setValue(shownValue(*shown, index));
}

void QuantityDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const auto shown = quantity(index.column());
  auto* const box = qobject_cast<QDoubleSpinBox*>(editor);
  if (!shown || !box) {
    QItemDelegate::setModelData(editor, model, index);
    return;
  }
  box->interpretText();
  model->setData(index, shown->stored(box->value()), Qt::EditRole);
}

} // namespace TVR
