#pragma once

#include <QObject>
#include <QTimer>

#include <set>

class QColor;
class QtProperty;

namespace TVR::GUI {

/// The rows whose values rules change: each flashes once, and says beside its value what it was or
/// is going to be, until the marks are taken away.
class ChangeMarks : public QObject {
  Q_OBJECT

public:
  /// How long a row flashes [ms].
  static constexpr int flashTime = 1500;

  explicit ChangeMarks(QObject* parent = nullptr);

  /// Marks a row, which outlives the marks. `note` stands beside its value, which has little room:
  /// tool tip and screen reader say it `inFull`.
  void mark(QtProperty* property, const QString& note, const QString& inFull, const QColor& colour);
  /// Takes all marks away.
  void clear();

private:
  void endFlash();

  std::set<QtProperty*> marked_;
  QTimer flash_;
};

} // namespace TVR::GUI
