#include "desktop/PluginLoading.h"

#include "support/TestDirectory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QObject>

#include <gtest/gtest.h>

namespace TVR::Desktop {
namespace {

class PluginLoadingTest : public testing::Test, protected TestDirectory {
protected:
  QString fault;
};

TEST_F(PluginLoadingTest, aMissingPluginIsToldWithItsFolder) {
  EXPECT_FALSE(PluginLoading::load(path("plugins"), fault));
  EXPECT_EQ(fault, "The plug-in of the program is missing: there is none in the folder " +
                       path("plugins") +
                       ".\n\nTo solve this problem, please re-install the program.");
}

TEST_F(PluginLoadingTest, aFileThatIsNoPluginIsPassedBy) {
  QFile file(path("libother.so"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no library");
  file.close();
  EXPECT_FALSE(PluginLoading::load(directory.path(), fault));
  EXPECT_TRUE(fault.startsWith("The plug-in of the program is missing"));
}

TEST_F(PluginLoadingTest, thePluginLiesBesideTheFolderOfTheProgram) {
  EXPECT_EQ(PluginLoading::usualDirectory(),
            QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../plugins"));
}

} // namespace
} // namespace TVR::Desktop
