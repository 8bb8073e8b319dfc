#include "desktop/CommandLine.h"

#include <gtest/gtest.h>

namespace TVR::Desktop {
namespace {

CommandLine parsed(const QStringList& arguments) {
  return CommandLine::parse(QStringList{"tevrane"} + arguments);
}

TEST(CommandLineTest, namesFilesAndALanguage) {
  const CommandLine line = parsed({"a.tvr", "--language", "de", "b.tbat"});
  EXPECT_EQ(line.files, (QStringList{"a.tvr", "b.tbat"}));
  EXPECT_EQ(line.language, "de");
  EXPECT_TRUE(line.answer.isEmpty());
  EXPECT_TRUE(line.fault.isEmpty());
  EXPECT_FALSE(line.quitsWhenReady);
}

TEST(CommandLineTest, anUnknownLanguageIsAFault) {
  EXPECT_EQ(parsed({"--language", "it"}).fault,
            "There is no language it; there are de, en and fr.");
}

TEST(CommandLineTest, anUnknownOptionIsAFault) {
  EXPECT_EQ(parsed({"--fast"}).fault, "Unknown option 'fast'.");
}

TEST(CommandLineTest, helpTellsFilesAndOptionsButNotWhatIsForMeasuring) {
  const QString help = parsed({"--help"}).answer;
  EXPECT_TRUE(help.contains("[FILE...]"));
  EXPECT_TRUE(help.contains("--language"));
  EXPECT_FALSE(help.contains("quit-when-ready"));
}

TEST(CommandLineTest, theVersionIsThatOfTheProgram) {
  EXPECT_EQ(parsed({"--version"}).answer, "Tevrane " TEVRANE_VERSION "\n");
}

TEST(CommandLineTest, aMeasuredStartQuitsWhenItIsReady) {
  EXPECT_TRUE(parsed({"--quit-when-ready"}).quitsWhenReady);
}

} // namespace
} // namespace TVR::Desktop
