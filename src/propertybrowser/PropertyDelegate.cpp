#include "propertybrowser/PropertyDelegate.h"

#include "propertybrowser/PropertyTreeModel.h"
#include "propertybrowser/QtAbstractPropertyManager.h"
#include "propertybrowser/QtProperty.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QStyle>

namespace {

const QColor remarkColour(176, 0, 32); // readable on white as on the rows between

QVariant readEditor(QWidget& editor) {
  if (auto* const box = qobject_cast<QAbstractSpinBox*>(&editor))
    box->interpretText();
  return editor.metaObject()->userProperty().read(&editor);
}

bool isScaled(const QtProperty& property) {
  return property.propertyType() == QMetaType::Double &&
         property.propertyManager()->scale(&property) != 1.0;
}

/// The value as an editor shows it, and the other way; what is no number stays as it is.
QVariant toShown(const QtProperty& property, const QVariant& value) {
  if (!isScaled(property))
    return value;
  return value.toDouble() * property.propertyManager()->scale(&property);
}
QVariant fromShown(const QtProperty& property, QVariant shown) {
  if (!isScaled(property) || !shown.convert(QMetaType::Double))
    return shown;
  return shown.toDouble() / property.propertyManager()->scale(&property);
}

/// What a screen reader says of an editor, which itself shows it the bare number.
QString nameWithUnit(const QtProperty& property) {
  const QString unit =
      property.propertyManager()->attributeValue(&property, "prefix").toString().trimmed();
  return unit.isEmpty() ? property.propertyName()
                        : QStringLiteral("%1 [%2]").arg(property.propertyName(), unit);
}

/// Whether the editor says by itself when a whole new value stands in it; a line does for each
/// letter.
bool tellsWholeValues(const QWidget& editor) {
  return editor.metaObject()->userProperty().hasNotifySignal() &&
         !qobject_cast<const QLineEdit*>(&editor);
}

} // namespace

PropertyDelegate::PropertyDelegate(EditorMaker makeEditor, QObject* parent)
    : QStyledItemDelegate(parent), makeEditor_(std::move(makeEditor)) {}

void PropertyDelegate::dropEditor(const QtProperty* property) {
  if (editing_.editor && PropertyTreeModel::property(editing_.index) == property)
    emit closeEditor(editing_.editor, RevertModelCache);
}

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
  QtProperty* const property = PropertyTreeModel::property(index);
  QWidget* const editor = makeEditor_(property, parent);
  if (!editor)
    return nullptr;
  editor->setAutoFillBackground(true);
  editor->setAccessibleName(nameWithUnit(*property));
  editor->setAccessibleDescription(index.data(Qt::AccessibleDescriptionRole).toString());
  editor->setToolTip(index.data(Qt::ToolTipRole).toString());
  editing_ = {editor, index, property->value(), property->isModified(), {}, {}};
  if (tellsWholeValues(*editor)) {
    const QMetaMethod commit = metaObject()->method(
        metaObject()->indexOfSlot(QMetaObject::normalizedSignature("commitSender()")));
    connect(editor, editor->metaObject()->userProperty().notifySignal(), this, commit);
  }
  return editor;
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QtProperty& property = *PropertyTreeModel::property(index);
  const QVariant value = property.value();
  if (editing_.value == value)
    return; // so that half a number stays while something else of the row changes
  editing_.value = value;
  const QSignalBlocker silent(editor);
  editor->metaObject()->userProperty().write(editor, toShown(property, value));
  editing_.shown = readEditor(*editor);
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const QVariant value = readEditor(*editor);
  if (value == editing_.shown)
    return;
  editing_.shown = value;
  model->setData(index, fromShown(*PropertyTreeModel::property(index), value), Qt::EditRole);
}

void PropertyDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const {
  editor->setGeometry(option.rect); // a frame is no reason to leave the row
}

void PropertyDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.column() != PropertyTreeModel::ValueColumn)
    return;
  const QtPropertyDecoration& decoration = PropertyTreeModel::property(index)->decoration();
  for (const QString& text : {decoration.note, decoration.remark}) {
    if (!text.isEmpty())
      option->text += QStringLiteral("   ") + text;
  }
  if (decoration.remark.isEmpty())
    return;
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = option->widget->style()->standardIcon(QStyle::SP_MessageBoxWarning);
  option->palette.setColor(QPalette::Text, remarkColour);
}

void PropertyDelegate::restore() const {
  QtProperty* const property = PropertyTreeModel::property(editing_.index);
  if (!property || property->value() == editing_.opened)
    return;
  property->setValue(editing_.opened);
  property->setModified(editing_.wasModified);
}

bool PropertyDelegate::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    event->ignore(); // whoever turns the wheel over an open editor means the tree
    return true;
  }
  if (event->type() == QEvent::KeyPress && watched == editing_.editor &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
    restore();
  return QStyledItemDelegate::eventFilter(watched, event);
}

void PropertyDelegate::commitSender() {
  emit commitData(qobject_cast<QWidget*>(sender()));
}
