#include "results/FileDialogs.h"

#include "host/ApplicationInterface.h"
#include "results/WorkingDirectory.h"

#include <QFileDialog>
#include <QMainWindow>

namespace TVR {

namespace {

QWidget* parentOf(BrenvikApp::ApplicationInterface* host) {
  return host ? host->mainWindow() : nullptr;
}

QString remembered(const QString& fileName, BrenvikApp::ApplicationInterface* host) {
  if (!fileName.isEmpty())
    rememberDirectoryOf(fileName, host);
  return fileName;
}

} // namespace

QString fileToOpen(BrenvikApp::ApplicationInterface* host, const QString& title,
                   const QString& filter) {
  return remembered(
      QFileDialog::getOpenFileName(parentOf(host), title, startDirectory(host), filter), host);
}

QString fileToSave(BrenvikApp::ApplicationInterface* host, const QString& title,
                   const QString& filter, const QString& proposal) {
  const QString start = proposal.isEmpty() ? startDirectory(host) : proposal;
  return remembered(QFileDialog::getSaveFileName(parentOf(host), title, start, filter), host);
}

} // namespace TVR
