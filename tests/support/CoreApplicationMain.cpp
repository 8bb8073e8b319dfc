#include "support/NoSettings.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

/// Tests run with an application without a window system, and with settings of their own, so that
/// nothing of the user's is read or written.
int main(int argc, char** argv) {
  keepNoSettings();
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
