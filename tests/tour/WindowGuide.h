#pragma once

#include "tour/Visit.h"

#include <QObject>

class QWidget;
class QWizard;

namespace TVR::Test {

/// Lets windows lay out what they show: a label that changes may change the width of another one,
/// and that its height.
void settle();

/// Visits each window that opens while something is done, as soon as it has been shown, and closes
/// it; dialogs are called off.
class WindowGuide final : public QObject {
public:
  /// `home` is the window from which the others are opened, and is left alone.
  WindowGuide(const QWidget& home, const Visit& visit);

  /// Does what may open windows, and returns when all of them have been visited and closed. They
  /// are named after the way.
  void go(const QString& way, const std::function<void()>& open);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  QString nextName();
  void visitSettled(QWidget& window);
  void visit(QWidget& window);
  void visitPages(QWizard& wizard);

  const QWidget& home_;
  const Visit& visit_;
  QString way_;
  int count_ = 0;
  int pending_ = 0; ///< windows that have been shown and not been visited yet
};

} // namespace TVR::Test
