#include "boxes/MessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace TVR {
namespace {

/// Shows a proposal, and answers it by a key.
bool answerBy(Qt::Key key) {
  bool isSeen = false;
  QTimer::singleShot(0, [key, &isSeen] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
      return;
    isSeen = true;
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->text(), "<b>Take it?</b>");
    EXPECT_EQ(box->textFormat(), Qt::RichText);
    EXPECT_EQ(box->standardButtons(), QMessageBox::Save | QMessageBox::Discard);
    QTest::keyClick(box, key);
  });
  const bool isSaved = MessageBoxes().savesProposal("Tevrane", "<b>Take it?</b>");
  EXPECT_TRUE(isSeen);
  return isSaved;
}

TEST(ProposalBox, enterSavesAndEscapeDiscards) {
  EXPECT_TRUE(answerBy(Qt::Key_Return));
  EXPECT_FALSE(answerBy(Qt::Key_Escape));
}

} // namespace
} // namespace TVR
