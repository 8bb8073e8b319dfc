#include "store/StoreTest.h"
#include "support/MessageLog.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace TVR::Data {
namespace {

/// What the program itself says; Qt adds warnings of its own.
QStringList messages(const MessageLog& log) {
  return log.lines().filter(QRegExp("^Tevrane: "));
}

QString databaseFile() {
  return ReferenceDatabase::file(QCoreApplication::applicationDirPath());
}

TEST(UnreadableDatabase, isNoFile) {
  EXPECT_TRUE(QFileInfo(databaseFile()).isDir());
}

TEST(UnreadableDatabase, isToldToTheUserAndCountsAsUsable) {
  const MessageLog log;
  EXPECT_TRUE(Manager::openDatabase());
  EXPECT_EQ(
      messages(log),
      QStringList{QString("Tevrane: An internal error has occurred [%1]").arg(databaseFile())});
}

TEST(UnreadableDatabase, queriesReportThemselves) {
  Manager* const store = Manager::instance();
  const MessageLog log;
  EXPECT_FALSE(store->referenceValue(Parameter::HeatingDegreeDays, 1).isValid());
  ASSERT_EQ(messages(log).size(), 2);
  EXPECT_TRUE(messages(log)[0].startsWith("Tevrane: An internal error has occurred ["));
  EXPECT_TRUE(
      messages(log)[1].startsWith("Tevrane: <b>A database error has occurred :</b>\nQuery:\t"));
}

TEST(UnreadableDatabase, resetReportsTheDefaultsAndLeavesNothingButTheLanguage) {
  Manager* const store = Manager::instance();
  store->setValue(Parameter::GuiLanguage, "de");
  store->setValue(Parameter::ProjectName, "Brunnen");
  const MessageLog log;
  store->reset();
  EXPECT_EQ(store->values(), (QMap<int, QVariant>{{Parameter::GuiLanguage, "de"}}));
  EXPECT_EQ(messages(log).size(), 2);
}

} // namespace
} // namespace TVR::Data
