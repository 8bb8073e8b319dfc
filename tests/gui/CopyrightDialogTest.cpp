#include "gui/CopyrightDialog.h"

#include <QLabel>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

using TVR::GUI::CopyrightDialog;

namespace {

class CopyrightDialogTest : public testing::Test {
protected:
  CopyrightDialog dialog;
};

} // namespace

TEST_F(CopyrightDialogTest, hasTheSizeOfItsForm) {
  EXPECT_EQ(dialog.size(), QSize(400, 300));
  EXPECT_EQ(dialog.windowTitle(), "Copyright information");
}

TEST_F(CopyrightDialogTest, isWhiteInAnyTheme) {
  const QBrush ground = dialog.palette().brush(dialog.backgroundRole());
  EXPECT_EQ(ground, QBrush(Qt::white, Qt::SolidPattern));
  EXPECT_EQ(dialog.palette().color(dialog.foregroundRole()), QColor(Qt::black));
}

TEST_F(CopyrightDialogTest, hasOneLabelWithTheNotice) {
  dialog.setLabel("<h3>Notice</h3>");
  const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels.first()->text(), "<h3>Notice</h3>");
}

TEST_F(CopyrightDialogTest, becomesHigherForALongNotice) {
  dialog.setLabel(QString("<p>line</p>").repeated(40));
  EXPECT_EQ(dialog.width(), 400);
  EXPECT_GE(dialog.height(), dialog.findChild<QLabel*>()->heightForWidth(400));
}

TEST_F(CopyrightDialogTest, closesByItselfAfterEightSeconds) {
  auto* const timer = dialog.findChild<QTimer*>();
  ASSERT_TRUE(timer);
  EXPECT_EQ(timer->interval(), 8000);
  EXPECT_TRUE(timer->isActive());
  EXPECT_TRUE(timer->isSingleShot());
  dialog.show();
  timer->start(0);
  QCoreApplication::processEvents();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(CopyrightDialogTest, escapeClosesIt) {
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}
