#include "boxes/MessageBoxes.h"

#include <QApplication>
#include <QMessageBox>

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

} // namespace

bool MessageBoxes::haveScreen() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    return false;
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

void MessageBoxes::tell(Severity severity, const QString& title, const QString& text,
                        Qt::TextFormat format) {
  QMessageBox box(icon(severity), title, text, QMessageBox::Ok);
  box.setTextFormat(format);
  box.exec();
}

bool MessageBoxes::agrees(const QString& title, const QString& text) {
  return QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok | QMessageBox::Cancel)
             .exec() == QMessageBox::Ok;
}

bool MessageBoxes::saves(const QString& title, const QString& text) {
  return QMessageBox(QMessageBox::Question, title, text, QMessageBox::Save | QMessageBox::No)
             .exec() == QMessageBox::Save;
}

bool MessageBoxes::savesProposal(const QString& title, const QString& richText) {
  QMessageBox box(QMessageBox::Warning, title, richText, QMessageBox::Save | QMessageBox::Discard);
  box.setTextFormat(Qt::RichText);
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Discard);
  return box.exec() == QMessageBox::Save;
}

bool MessageBoxes::saysYes(Severity severity, const QString& title, const QString& text) {
  QMessageBox box(icon(severity), title, text, QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

bool MessageBoxes::saysOk(const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Ok;
}

Unsaved MessageBoxes::decidesOnChanges(const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Warning, title, text,
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
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
  QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok);
  box.setIconPixmap(QPixmap(picture));
  box.setInformativeText(details);
  box.exec();
}

} // namespace TVR
