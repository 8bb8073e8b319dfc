#include "results/WorkingDirectory.h"

#include "results/DialogHost.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace TVR {
namespace {

TEST(WorkingDirectory, isTheHosts) {
  DialogHost host;
  host.path = "/projects";
  EXPECT_EQ(startDirectory(&host), "/projects");
}

TEST(WorkingDirectory, withoutAHostTheSettingsSayIt) {
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  QSettings("Norvalt", "Tevrane").setValue("working_path", "/of the settings");
  EXPECT_EQ(startDirectory(nullptr), "/of the settings");
}

TEST(WorkingDirectory, isRememberedByAHostThatKeepsIt) {
  DialogHost host;
  rememberDirectoryOf("/a b/c.d/project.tvr", &host);
  host.keeps = false;
  rememberDirectoryOf("/elsewhere/project.tvr", &host);
  rememberDirectoryOf("/elsewhere/project.tvr", nullptr);
  EXPECT_EQ(host.told, QStringList{"/a b/c.d"});
}

} // namespace
} // namespace TVR
