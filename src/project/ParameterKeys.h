#pragma once

#include <QMap>
#include <QString>

namespace TVR {

/// The names of the parameters in files, of this program generation and of the previous one.
class ParameterKeys {
public:
  ParameterKeys();

  /// The name of a parameter; empty for an id without one.
  /// Required oddity: asking for such a name makes the empty key known; from then on it is found.
  QString key(int id) const { return keys_[id]; }
  /// The name that the previous program generation used; not unique.
  QString formerKey(int id) const { return formerKeys_.value(id); }
  /// The lowest id with this key; 0 for an unknown key, or what is given for one.
  int idOfKey(const QString& key, int unknown = 0) const { return keys_.key(key, unknown); }
  /// The lowest id that had this key in the previous program generation; 0 for an unknown key.
  int idOfFormerKey(const QString& key) const { return formerKeys_.key(key, 0); }

private:
  mutable QMap<int, QString> keys_;
  QMap<int, QString> formerKeys_;
};

} // namespace TVR
