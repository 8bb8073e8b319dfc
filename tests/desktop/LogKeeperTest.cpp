#include "desktop/LogKeeper.h"

#include "support/MessageLog.h"

#include <QDebug>

#include <gtest/gtest.h>

namespace TVR::Desktop {
namespace {

TEST(LogKeeperTest, keepsWhatIsLoggedAndLetsItThrough) {
  const MessageLog terminal;
  const LogKeeper keeper;
  qDebug() << "first";
  qWarning() << "second";
  ASSERT_EQ(LogKeeper::lines().size(), 2);
  EXPECT_TRUE(LogKeeper::lines()[0].endsWith(" first"));
  EXPECT_EQ(terminal.lines(), (QStringList{"first", "second"}));
}

TEST(LogKeeperTest, keepsTheLastLinesOnly) {
  const MessageLog terminal;
  const LogKeeper keeper;
  for (int i = 0; i < 501; ++i)
    qDebug() << i;
  ASSERT_EQ(LogKeeper::lines().size(), 500);
  EXPECT_TRUE(LogKeeper::lines().first().endsWith(" 1"));
  EXPECT_TRUE(LogKeeper::lines().last().endsWith(" 500"));
}

TEST(LogKeeperTest, afterItTheLogGoesWhereItWent) {
  const MessageLog terminal;
  { const LogKeeper keeper; }
  qDebug() << "later";
  EXPECT_EQ(terminal.lines(), QStringList{"later"});
  EXPECT_TRUE(LogKeeper::lines().isEmpty());
}

} // namespace
} // namespace TVR::Desktop
