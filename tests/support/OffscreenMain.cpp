#include "support/NoSettings.h"

#include <QApplication>

#include <gtest/gtest.h>

/// The off-screen platform leaves its screen behind when the application ends: the address
/// sanitizer looks for no leaks here. All other test programs are looked through.
extern "C" const char* __asan_default_options() {
  return "detect_leaks=0";
}

/// Tests run with widgets that nobody sees, and with settings of their own.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  keepNoSettings();
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
