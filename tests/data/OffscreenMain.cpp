#include <QApplication>

#include <gtest/gtest.h>

/// Tests run with widgets that nobody sees, and with settings of their own.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", QByteArray("/nonexistent/tevrane-tests"));
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
