#include "gui/wizard/PictureChoice.h"

#include "host/ApplicationInterface.h"
#include "project/UserSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QImageReader>

namespace TVR::GUI {

namespace {

/// The folder "data" beside the program, whose files may lie in a folder of their own.
QString dataDirectory() {
  QDir directory(QCoreApplication::applicationDirPath());
  const QString name = directory.dirName().toLower();
  if (name == "debug" || name == "release" || name == "bin")
    directory.cdUp();
  return directory.filePath("data");
}

} // namespace

QString pictureDirectory(const BrenvikApp::ApplicationInterface* host) {
  if (host)
    return host->workingPath();
  const QSettings settings = userSettings();
  const QString path = settings.value("working_path").toString();
  return path.isEmpty() ? settings.value("WorkingPath", dataDirectory()).toString() : path;
}

QString pictureFilter() {
  QString formats;
  for (const QByteArray& format : QImageReader::supportedImageFormats())
    formats += QStringLiteral("*.%1 ").arg(QString::fromLatin1(format));
  return QCoreApplication::translate("TVR::GUI::PictureChoice", "Image files (%1)").arg(formats);
}

QString askForPicture(QWidget* parent, const QString& title,
                      const BrenvikApp::ApplicationInterface* host) {
  return QFileDialog::getOpenFileName(parent, title, pictureDirectory(host), pictureFilter());
}

} // namespace TVR::GUI
