#include "plugin/Languages.h"
#include "plugin/PluginTest.h"
#include "support/SettingsOfTheTest.h"

#include <QLocale>

#include <cstdlib>
#include <iostream>

using namespace TVR;

namespace {

class DefaultLanguageTest : public PluginTest {
protected:
  static void chooseFormerly(const QString& language) {
    SettingsOfTheTest::former().setValue("current/gui_language", language);
  }
  static QString languageOfANewPlugin() { return TVRPlugin().language(); }

private:
  const SettingsOfTheTest settings_;
};

/// The locale of programs that are started while this object lives.
class SystemLocale {
public:
  explicit SystemLocale(const char* name) { qputenv(variable, name); }
  ~SystemLocale() {
    if (before_.isNull())
      qunsetenv(variable);
    else
      qputenv(variable, before_);
  }
  SystemLocale(const SystemLocale&) = delete;
  SystemLocale& operator=(const SystemLocale&) = delete;

private:
  static constexpr char variable[] = "LC_ALL";
  const QByteArray before_ = qgetenv(variable);
};

[[noreturn]] void tellLanguageAndEnd() {
  qunsetenv("LANGUAGE");
  std::cerr << "language " << TVRPlugin().language().toStdString();
  std::_Exit(EXIT_SUCCESS);
}

} // namespace

// A program asks for the locale of the system once: each case runs in a program of its own.
TEST(DefaultLanguage, isThatOfTheSystem) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const std::pair<const char*, const char*> cases[] = {{"fr_CH.UTF-8", "language fr$"},
                                                       {"de_AT.UTF-8", "language de$"},
                                                       {"it_IT.UTF-8", "language en$"}};
  for (const auto& [system, language] : cases) {
    const SystemLocale locale(system);
    EXPECT_EXIT(tellLanguageAndEnd(), testing::ExitedWithCode(EXIT_SUCCESS), language) << system;
  }
}

TEST_F(DefaultLanguageTest, theLastParameterSetComesBeforeTheSystem) {
  for (const char* language : {"fr", "de", "en"}) {
    SettingsOfTheTest::chooseLanguage(language);
    EXPECT_EQ(languageOfANewPlugin(), language);
  }
}

TEST_F(DefaultLanguageTest, formerSettingsHoldWhereTheLanguageIsLeftEmpty) {
  SettingsOfTheTest::chooseLanguage("");
  for (const char* language : {"fr", "de"}) {
    chooseFormerly(language);
    EXPECT_EQ(languageOfANewPlugin(), language);
  }
}

TEST_F(DefaultLanguageTest, theSystemComesBeforeFormerSettings) {
  chooseFormerly("former");
  EXPECT_EQ(preferredLanguage(), "en");
}
