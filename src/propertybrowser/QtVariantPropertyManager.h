#pragma once

#include "propertybrowser/QtAbstractPropertyManager.h"
#include "propertybrowser/QtProperty.h"

#include <memory>
#include <unordered_map>

/// Makes properties, owns them, and keeps their values and attributes. The attributes are
///   "minimum", "maximum", "singleStep"  of numbers, as editors take them;
///   "decimals"  places behind the point (2 without it);
///   "prefix"    text behind the number, such as " m/s";
///   "scale"     what is shown and typed for 1 of a double, whose limits and value stay as they
///   are; "format"    "g" shows a double as short as it can, with a power of ten where it has one;
///   figures
///               behind the letter ("g4") are the significant digits, six without. Else 'f'.
class QtVariantPropertyManager : public QtAbstractPropertyManager {
  Q_OBJECT

public:
  explicit QtVariantPropertyManager(QObject* parent = nullptr);
  ~QtVariantPropertyManager() override;

  /// A new property: enabled, visible, not modified, with the empty value of its type, which is a
  /// group, QMetaType::Bool, Int, Double or QString.
  QtProperty* addProperty(int type, const QString& name = {});
  /// Deletes a property; those below it stay.
  void removeProperty(QtProperty* property);
  /// Deletes all properties.
  void clear();

  QVariant value(const QtProperty* property) const override;
  /// Takes values outside minimum and maximum, too: those are for editors.
  void setValue(QtProperty* property, const QVariant& value) override;
  QVariant attributeValue(const QtProperty* property, const QString& attribute) const override;
  void setAttribute(QtProperty* property, const QString& attribute, const QVariant& value);
  QString valueText(const QtProperty* property) const override;

private:
  struct Entry {
    std::unique_ptr<QtProperty> property;
    QVariant value;
    QVariantMap attributes;
  };

  QString numberText(const Entry& entry) const;

  std::unordered_map<const QtProperty*, Entry> entries_;
};
