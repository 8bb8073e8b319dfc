#include "propertybrowser/QtProperty.h"

#include "propertybrowser/QtAbstractPropertyManager.h"

QtProperty::QtProperty(QtAbstractPropertyManager* manager, int type, const QString& name)
    : manager_(manager), type_(type), name_(name) {}

template <typename Member>
void QtProperty::change(Member& member, const Member& to) {
  if (member == to)
    return;
  member = to;
  emit manager_->propertyChanged(this);
}

bool QtProperty::isGroup() const {
  return type_ == QtAbstractPropertyManager::groupTypeId();
}

void QtProperty::setPropertyName(const QString& name) {
  change(name_, name);
}

void QtProperty::setToolTip(const QString& text) {
  change(toolTip_, text);
}

void QtProperty::setWhatsThis(const QString& text) {
  change(whatsThis_, text);
}

void QtProperty::setEnabled(bool enabled) {
  change(enabled_, enabled);
}

void QtProperty::setVisible(bool visible) {
  change(visible_, visible);
}

void QtProperty::setModified(bool modified) {
  change(modified_, modified);
}

void QtProperty::setDecoration(const QtPropertyDecoration& decoration) {
  change(decoration_, decoration);
}

void QtProperty::setItalic(bool italic) {
  change(decoration_.italic, italic);
}

void QtProperty::setBackground(const QColor& colour) {
  change(decoration_.background, colour);
}

void QtProperty::setBadge(const QString& badge, const QString& meaning) {
  QtPropertyDecoration decoration = decoration_;
  decoration.badge = badge;
  decoration.badgeText = meaning;
  setDecoration(decoration);
}

void QtProperty::setNote(const QString& note, const QString& inFull) {
  QtPropertyDecoration decoration = decoration_;
  decoration.note = note;
  decoration.noteText = inFull;
  setDecoration(decoration);
}

void QtProperty::setRemark(const QString& remark) {
  change(decoration_.remark, remark);
}

QVariant QtProperty::value() const {
  return manager_->value(this);
}

void QtProperty::setValue(const QVariant& value) {
  manager_->setValue(this, value);
}

QString QtProperty::valueText() const {
  return manager_->valueText(this);
}

void QtProperty::addSubProperty(QtProperty* property) {
  subProperties_.append(property);
  emit manager_->subPropertyAdded(this, property);
}

void QtProperty::removeSubProperty(QtProperty* property) {
  if (subProperties_.removeOne(property))
    emit manager_->subPropertyRemoved(this, property);
}
