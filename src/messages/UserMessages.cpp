#include "messages/UserMessages.h"

#include <QApplication>
#include <QDebug>
#include <QMessageBox>

namespace TVR {

namespace {

bool hasScreen() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    return false;
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

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

/// Whether the user chooses `yes` and not `no`. Where nobody can, the question goes to the log.
bool userChooses(QMessageBox::Icon icon, const QString& title, const QString& text,
                 QMessageBox::StandardButton yes, QMessageBox::StandardButton no) {
  if (hasScreen())
    return QMessageBox(icon, title, text, yes | no).exec() == yes;
  tellUser(Severity::Information, title, text);
  return true;
}

} // namespace

void tellUser(Severity severity, const QString& title, const QString& text, Qt::TextFormat format) {
  if (hasScreen()) {
    QMessageBox box(icon(severity), title, text, QMessageBox::Ok);
    box.setTextFormat(format);
    box.exec();
    return;
  }
  const QString line = QStringLiteral("%1: %2").arg(title, text);
  if (severity == Severity::Information)
    qInfo().noquote() << line;
  else
    qWarning().noquote() << line;
}

bool userAgrees(const QString& title, const QString& text) {
  return userChooses(QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Cancel);
}

bool userSaves(const QString& title, const QString& text) {
  return userChooses(QMessageBox::Question, title, text, QMessageBox::Save, QMessageBox::No);
}

void tellUserDone(const QString& title, const QString& text, const QString& details,
                  const QString& picture) {
  if (!hasScreen()) {
    qInfo().noquote() << QStringLiteral("%1: %2 %3").arg(title, text, details);
    return;
  }
  QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok);
  box.setIconPixmap(QPixmap(picture));
  box.setInformativeText(details);
  box.exec();
}

} // namespace TVR
