#include "propertybrowser/QtVariantPropertyManager.h"

namespace {

constexpr int defaultDecimals = 2;
constexpr int defaultDigits = 6;

} // namespace

QtVariantPropertyManager::QtVariantPropertyManager(QObject* parent)
    : QtAbstractPropertyManager(parent) {
  qRegisterMetaType<QtProperty*>(); // as the signals carry it
}

QtVariantPropertyManager::~QtVariantPropertyManager() {
  clear();
}

QtProperty* QtVariantPropertyManager::addProperty(int type, const QString& name) {
  std::unique_ptr<QtProperty> owned(new QtProperty(this, type, name));
  QtProperty* const property = owned.get();
  const QVariant empty = property->isGroup() ? QVariant() : QVariant(QVariant::Type(type));
  entries_.emplace(property, Entry{std::move(owned), empty, {}});
  return property;
}

void QtVariantPropertyManager::removeProperty(QtProperty* property) {
  const auto found = entries_.find(property);
  if (found == entries_.end())
    return;
  for (const auto& [other, entry] : entries_)
    entry.property->removeSubProperty(property);
  emit propertyRemoved(property);
  entries_.erase(found);
}

void QtVariantPropertyManager::clear() {
  while (!entries_.empty())
    removeProperty(entries_.begin()->second.property.get());
}

QVariant QtVariantPropertyManager::value(const QtProperty* property) const {
  return entries_.at(property).value;
}

void QtVariantPropertyManager::setValue(QtProperty* property, const QVariant& value) {
  QVariant converted = value;
  QVariant& kept = entries_.at(property).value;
  if (property->isGroup() || !converted.convert(property->propertyType()) || converted == kept)
    return;
  kept = converted;
  property->modified_ = true;
  emit propertyChanged(property);
  emit valueChanged(property, converted);
}

QVariant QtVariantPropertyManager::attributeValue(const QtProperty* property,
                                                  const QString& attribute) const {
  return entries_.at(property).attributes.value(attribute);
}

void QtVariantPropertyManager::setAttribute(QtProperty* property, const QString& attribute,
                                            const QVariant& value) {
  entries_.at(property).attributes.insert(attribute, value);
  emit propertyChanged(property);
}

QString QtVariantPropertyManager::numberText(const Entry& entry) const {
  const QString format = entry.attributes.value("format").toString();
  const double number = entry.value.toDouble() * scale(entry.property.get());
  if (entry.value.type() == QVariant::Int)
    return QString::number(entry.value.toInt());
  if (!format.startsWith('g'))
    return QString::number(number, 'f',
                           entry.attributes.value("decimals", defaultDecimals).toInt());
  const int digits = format.midRef(1).toInt();
  return QString::number(number, 'g', digits > 0 ? digits : defaultDigits);
}

QString QtVariantPropertyManager::valueText(const QtProperty* property) const {
  const Entry& entry = entries_.at(property);
  switch (property->propertyType()) {
  case QMetaType::Bool:
    return entry.value.toBool() ? tr("True") : tr("False");
  case QMetaType::Int:
  case QMetaType::Double:
    return numberText(entry) + entry.attributes.value("prefix").toString();
  default:
    return entry.value.toString();
  }
}
