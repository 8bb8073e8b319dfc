#include "results/WorkingDirectory.h"

#include "host/ApplicationInterface.h"
#include "project/UserSettings.h"

#include <QFileInfo>

namespace TVR {

QString startDirectory(const BrenvikApp::ApplicationInterface* host) {
  return host ? host->workingPath() : userSettings().value("working_path").toString();
}

void rememberDirectoryOf(const QString& fileName, BrenvikApp::ApplicationInterface* host) {
  if (host && host->keepsWorkingPath())
    host->setWorkingPath(QFileInfo(fileName).path());
}

} // namespace TVR
