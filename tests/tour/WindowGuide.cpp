#include "tour/WindowGuide.h"

#include "support/EventWait.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QWizard>

namespace TVR::Test {
namespace {

bool isWindow(const QWidget& widget) {
  const Qt::WindowType type = widget.windowType();
  return type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet;
}

} // namespace

void settle() {
  constexpr int passes = 5;
  for (int pass = 0; pass < passes; ++pass)
    QCoreApplication::processEvents();
}

WindowGuide::WindowGuide(const QWidget& home, const Visit& visit) : home_(home), visit_(visit) {
  qApp->installEventFilter(this);
}

void WindowGuide::go(const QString& way, const std::function<void()>& open) {
  way_ = way;
  count_ = 0;
  open();
  waitUntil([this] { return pending_ == 0; });
}

bool WindowGuide::eventFilter(QObject* object, QEvent* event) {
  auto* const window = qobject_cast<QWidget*>(object);
  if (event->type() == QEvent::Show && window && window != &home_ && isWindow(*window)) {
    ++pending_;
    QTimer::singleShot(0, this, [this, shown = QPointer<QWidget>(window)] {
      if (shown && shown->isVisible())
        visit(*shown);
      --pending_;
    });
  }
  return false;
}

QString WindowGuide::nextName() {
  ++count_;
  return count_ == 1 ? way_ : QString("%1_%2").arg(way_).arg(count_);
}

void WindowGuide::visitSettled(QWidget& window) {
  settle();
  visit_(nextName(), window);
}

void WindowGuide::visit(QWidget& window) {
  if (auto* const wizard = qobject_cast<QWizard*>(&window))
    visitPages(*wizard);
  else
    visitSettled(window);
  if (auto* const dialog = qobject_cast<QDialog*>(&window))
    dialog->reject();
  window.close();
}

void WindowGuide::visitPages(QWizard& wizard) {
  for (int last = -1; wizard.currentId() != last;) {
    last = wizard.currentId();
    visitSettled(wizard);
    wizard.next();
  }
}

} // namespace TVR::Test
