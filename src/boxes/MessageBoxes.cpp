#include "boxes/MessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

namespace TVR {

namespace {

QMessageBox::Icon icon(Severity severity) {
  switch (severity) {
  case Severity::Information:
    return QMessageBox::Information;
  case Severity::Warning:
    return QMessageBox::Warning;
  case Severity::Critical:
    return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

/// The window that the user works in; null if there is none.
QWidget* windowInUse() {
  if (QWidget* const modal = QApplication::activeModalWidget())
    return modal;
  QWidget* const active = QApplication::activeWindow();
  return active && active->isVisible() ? active : nullptr;
}

bool anyStaysOnTop() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  });
}

/// A box above the windows of the program. Its parent may be gone before the user has answered, and
/// the box with it; the answer is then none of the buttons.
class Box {
public:
  Box(QMessageBox::Icon icon, const QString& title, const QString& text,
      QMessageBox::StandardButtons buttons)
      : box_(new QMessageBox(icon, title, text, buttons, windowInUse())) {
    box_->setWindowFlag(Qt::WindowStaysOnTopHint, anyStaysOnTop());
  }
  Box(const Box&) = delete;
  Box& operator=(const Box&) = delete;
  ~Box() { delete box_; }

  QMessageBox* operator->() const { return box_; }

private:
  const QPointer<QMessageBox> box_;
};

} // namespace

bool MessageBoxes::haveScreen() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    return false;
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

void MessageBoxes::tell(Severity severity, const QString& title, const QString& text,
                        Qt::TextFormat format) {
  Box box(icon(severity), title, text, QMessageBox::Ok);
  box->setTextFormat(format);
  box->exec();
}

bool MessageBoxes::agrees(const QString& title, const QString& text) {
  return Box(QMessageBox::Information, title, text, QMessageBox::Ok | QMessageBox::Cancel)
             ->exec() == QMessageBox::Ok;
}

bool MessageBoxes::saves(const QString& title, const QString& text) {
  return Box(QMessageBox::Question, title, text, QMessageBox::Save | QMessageBox::No)->exec() ==
         QMessageBox::Save;
}

bool MessageBoxes::savesProposal(const QString& title, const QString& richText) {
  Box box(QMessageBox::Warning, title, richText, QMessageBox::Save | QMessageBox::Discard);
  box->setTextFormat(Qt::RichText);
  box->setDefaultButton(QMessageBox::Save);
  box->setEscapeButton(QMessageBox::Discard);
  return box->exec() == QMessageBox::Save;
}

bool MessageBoxes::saysYes(Severity severity, const QString& title, const QString& text) {
  Box box(icon(severity), title, text, QMessageBox::Yes | QMessageBox::No);
  box->setDefaultButton(QMessageBox::No);
  return box->exec() == QMessageBox::Yes;
}

bool MessageBoxes::saysOk(const QString& title, const QString& text) {
  Box box(QMessageBox::Information, title, text, QMessageBox::Ok | QMessageBox::No);
  box->setDefaultButton(QMessageBox::No);
  return box->exec() == QMessageBox::Ok;
}

Unsaved MessageBoxes::decidesOnChanges(const QString& title, const QString& text) {
  Box box(QMessageBox::Warning, title, text,
          QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  box->setDefaultButton(QMessageBox::Save);
  switch (box->exec()) {
  case QMessageBox::Save:
    return Unsaved::Save;
  case QMessageBox::Discard:
    return Unsaved::Discard;
  default:
    return Unsaved::Keep;
  }
}

void MessageBoxes::tellDone(const QString& title, const QString& text, const QString& details,
                            const QString& picture) {
  Box box(QMessageBox::NoIcon, title, text, QMessageBox::Ok);
  box->setIconPixmap(QPixmap(picture));
  box->setInformativeText(details);
  box->exec();
}

} // namespace TVR
