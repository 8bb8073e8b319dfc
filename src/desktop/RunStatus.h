#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace TVR::Desktop {

/// How a run goes on, in the status bar: a bar, the time that remains, and a button that ends it.
/// Hidden while there is no run.
class RunStatus final : public QWidget {
  Q_OBJECT

public:
  explicit RunStatus(QWidget* parent = nullptr);

  /// A run has set off, or is over.
  void setRunning(bool isRunning);
  /// `value` of `maximum` steps are done. What is no part of a whole is no progress and shows
  /// nothing.
  void setProgress(int value, int maximum);

  /// The time left if `value` of `maximum` steps took `elapsed` [ms] and the others take as long
  /// each [s]; -1 where nobody can tell.
  static int remainingSeconds(int value, int maximum, qint64 elapsed);
  /// The same for the user; empty for -1.
  static QString remainingText(int seconds);

signals:
  void cancelled();

protected:
  void changeEvent(QEvent* event) override;

private:
  void retranslate();

  QLabel* const remaining_;
  QProgressBar* const bar_;
  QToolButton* const cancel_;
  QElapsedTimer clock_;
  bool isRunning_ = false;
};

} // namespace TVR::Desktop
