// Every window and dialog of the program, as a tour comes by them, is used by keyboard, with a
// screen reader and with large letters, in each language.

#include "accessibility/AccessibilityLint.h"
#include "support/SettingsOfTheTest.h"
#include "tour/WindowTour.h"

#include <QApplication>
#include <QFileDialog>
#include <QFont>
#include <QWidget>

#include <gtest/gtest.h>

using namespace TVR::Test;

namespace {

/// Dialogs for files and printing are the library's.
bool isOurs(const QWidget& window) {
  return *window.metaObject()->className() != 'Q' && !qobject_cast<const QFileDialog*>(&window);
}

/// The letters of all widgets that are made while this object lives, so many times as large.
class LargeLetters {
public:
  explicit LargeLetters(double times) : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSizeF(usual_.pointSizeF() * times);
    QApplication::setFont(font);
  }
  ~LargeLetters() { QApplication::setFont(usual_); }
  LargeLetters(const LargeLetters&) = delete;
  LargeLetters& operator=(const LargeLetters&) = delete;

private:
  const QFont usual_;
};

} // namespace

class AccessibleWindows : public testing::TestWithParam<std::tuple<const char*, double>> {};

TEST_P(AccessibleWindows, haveNoFaults) {
  const auto& [language, times] = GetParam();
  const SettingsOfTheTest settings;
  const LargeLetters letters(times);
  QStringList visited;
  tourOfWindows(language, TEVRANE_SOURCE_DIR "/examples/minimal.tbat",
                [&](const QString& name, QWidget& window) {
                  if (!isOurs(window))
                    return;
                  visited << name;
                  EXPECT_EQ(accessibilityFaults(window).join("; ").toStdString(), "")
                      << name.toStdString();
                });
  for (const char* const name :
       {"first_start", "welcome", "page", "guide", "about", "report_problem"})
    EXPECT_TRUE(visited.contains(name)) << name;
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, AccessibleWindows,
                         testing::Combine(testing::Values("de", "en", "fr"),
                                          testing::Values(1.0, 1.5)));
