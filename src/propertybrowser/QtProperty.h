#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QVariant>

class QtAbstractPropertyManager;

/// What a row of the tree shows beside name and value. Nothing of it changes the value.
struct QtPropertyDecoration {
  bool italic = false; ///< the value, such as one that is computed
  QColor background;   ///< of the row; none if invalid
  QString badge;       ///< a sign or two before the name
  QString badgeText;   ///< what the badge means, for tool tip and screen reader
  QString note;        ///< behind the value, such as what it was before
  QString noteText;    ///< the note in full, for tool tip and screen reader
  QString remark;      ///< why the value is impossible; the row is marked while there is one

  bool operator==(const QtPropertyDecoration& other) const = default;
};

/// One named value, or a group of others. Made and owned by a QtVariantPropertyManager, which keeps
/// its value and tells of every change.
class QtProperty final {
public:
  QtProperty(const QtProperty&) = delete;
  QtProperty& operator=(const QtProperty&) = delete;

  QtAbstractPropertyManager* propertyManager() const { return manager_; }
  /// The QMetaType of the value, or QtAbstractPropertyManager::groupTypeId().
  int propertyType() const { return type_; }
  bool isGroup() const;

  const QString& propertyName() const { return name_; }
  void setPropertyName(const QString& name);
  const QString& toolTip() const { return toolTip_; }
  void setToolTip(const QString& text);
  const QString& whatsThis() const { return whatsThis_; }
  void setWhatsThis(const QString& text);

  /// Whatever the maker of the property wants to find again.
  const QVariant& data() const { return data_; }
  void setData(const QVariant& data) { data_ = data; }

  /// Whether the value can be edited. (A row that cannot is shown and reached like all others.)
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// Whether trees show the property at all.
  bool isVisible() const { return visible_; }
  void setVisible(bool visible);
  /// Whether the value has been set to another one since the mark was taken away.
  bool isModified() const { return modified_; }
  void setModified(bool modified);

  const QtPropertyDecoration& decoration() const { return decoration_; }
  void setDecoration(const QtPropertyDecoration& decoration);
  void setItalic(bool italic);
  void setBackground(const QColor& colour);
  void setBadge(const QString& badge, const QString& meaning);
  void setNote(const QString& note, const QString& inFull);
  void setRemark(const QString& remark);

  /// The value; invalid for a group.
  QVariant value() const;
  /// As QtAbstractPropertyManager::setValue.
  void setValue(const QVariant& value);
  /// The value as trees show it, with the text behind the number; empty for a group.
  QString valueText() const;

  const QList<QtProperty*>& subProperties() const { return subProperties_; }
  /// Puts a property last among those below. It must not be there yet, nor stand above.
  void addSubProperty(QtProperty* property);
  void removeSubProperty(QtProperty* property);

private:
  friend class QtVariantPropertyManager;

  QtProperty(QtAbstractPropertyManager* manager, int type, const QString& name);

  template <typename Member>
  void change(Member& member, const Member& to);

  QtAbstractPropertyManager* manager_;
  int type_;
  QString name_;
  QString toolTip_;
  QString whatsThis_;
  QVariant data_;
  QtPropertyDecoration decoration_;
  QList<QtProperty*> subProperties_;
  bool enabled_ = true;
  bool visible_ = true;
  bool modified_ = false;
};

Q_DECLARE_METATYPE(QtProperty*)
