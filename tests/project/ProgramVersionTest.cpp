#include "project/ProgramVersion.h"

#include <gtest/gtest.h>

namespace TVR {

TEST(VersionLabel, isTheVersionItself) {
  EXPECT_EQ(versionLabel("2.0.7"), "2.0.7");
  EXPECT_EQ(versionLabel("2.96.1"), "2.96.1");
}

TEST(VersionLabel, namesPreviewsOfTheNextMajorVersion) {
  EXPECT_EQ(versionLabel("2.97.3"), "3.0.0 alpha 4");
  EXPECT_EQ(versionLabel("2.98.0"), "3.0.0 beta 1");
  EXPECT_EQ(versionLabel("9.99.9"), "10.0.0 rc 10");
}

TEST(VersionLabel, comparesTheSecondSectionAsText) {
  EXPECT_EQ(versionLabel("2.100.3"), "2.100.3");
  EXPECT_EQ(versionLabel("2.970.3"), "3.0.0 ");
}

} // namespace TVR
