#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

namespace TVR {

struct Project;

/// One thing in which two projects differ, in the words and units of the user.
struct Difference {
  QString what;
  QString before;
  QString after;
};

/// Translation context of the differences that no label of a parameter names.
class ProjectDifferences : public QObject {
  Q_OBJECT
public:
  /// What of the user's work differs (see isSameWork): a line for each parameter, then how many
  /// wells and demand periods there are and how many of them have other values.
  static QList<Difference> between(const Project& before, const Project& after);
  /// The same of those parameters only that count.
  static QList<Difference> between(const Project& before, const Project& after,
                                   const std::function<bool(int id)>& counts);
};

} // namespace TVR
