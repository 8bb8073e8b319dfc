#include "messages/UserMessages.h"

#include "support/MessageLog.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace TVR {
namespace {

TEST(UserMessages, goToTheLogWhereNobodySeesTheScreen) {
  const MessageLog log;
  tellUser(Severity::Critical, programTitle, "first %1");
  tellUser(Severity::Warning, "Title", "second\nline");
  tellUser(Severity::Information, "Title", "third");
  EXPECT_EQ(log.lines(), (QStringList{"Tevrane: first %1", "Title: second\nline", "Title: third"}));
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(UserMessages, questionsThatNobodySeesAreAgreedTo) {
  const MessageLog log;
  EXPECT_TRUE(userAgrees("Title", "Go on?"));
  EXPECT_TRUE(userSaves("Title", "Save?"));
  EXPECT_EQ(log.lines(), (QStringList{"Title: Go on?", "Title: Save?"}));
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

} // namespace
} // namespace TVR
