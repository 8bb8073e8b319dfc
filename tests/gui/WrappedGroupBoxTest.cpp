#include "gui/wizard/WrappedGroupBox.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace TVR::GUI {
namespace {

class WrappedGroupBoxTest : public testing::Test {
protected:
  WrappedGroupBoxTest() {
    box.setTitle("A title of many words that do not find room in a line");
    box.setCheckable(true);
    auto* const layout = new QVBoxLayout(&box);
    layout->addWidget(&content);
    box.show();
  }
  int topOfContentAt(int width) {
    box.resize(width, 400);
    QApplication::processEvents();
    return content.geometry().top();
  }

  WrappedGroupBox box;
  QLabel content{"content"};
};

TEST_F(WrappedGroupBoxTest, whatIsInItBeginsBelowAllLinesOfItsTitle) {
  const int inOneLine = topOfContentAt(2000);
  const int line = box.fontMetrics().lineSpacing();
  const int inMany = topOfContentAt(200);
  EXPECT_GE(inMany, inOneLine + 2 * line);
  EXPECT_EQ((inMany - inOneLine) % line, 0);
  EXPECT_EQ(topOfContentAt(2000), inOneLine);
}

TEST_F(WrappedGroupBoxTest, aNewTitleFindsItsRoom) {
  const int before = topOfContentAt(200);
  box.setTitle("Short");
  QApplication::processEvents();
  EXPECT_LT(content.geometry().top(), before);
}

TEST_F(WrappedGroupBoxTest, itCanBeAsNarrowAsItsLongestWord) {
  EXPECT_LT(box.minimumSizeHint().width(), 200);
  box.setTitle(QString(60, 'm'));
  EXPECT_GE(box.minimumSizeHint().width(), box.fontMetrics().horizontalAdvance(box.title()));
}

} // namespace
} // namespace TVR::GUI
