#include "page/window/ShownPage.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using namespace Sketra_lib::Property;

/// What its user does to the page, and whether the window says that it is another one.
struct PageModifiedTest : testing::Test {
  ShownPage shown;
  PageWindow& window = shown.window;
  QSignalSpy modified{&window, &PageWindow::modified};
  const QPointF middle = shown.pixelOf({680040, 226035});

  void TearDown() override { window.clearContents(); }
};

TEST_F(PageModifiedTest, aDragOfTheMapModifiesThePageOnceAtItsEnd) {
  shown.press(middle);
  shown.move(middle + QPointF(40, 0));
  shown.move(middle + QPointF(80, 0));
  EXPECT_EQ(modified.size(), 0);
  shown.release(middle + QPointF(80, 0));
  EXPECT_EQ(modified.size(), 1);
}

TEST_F(PageModifiedTest, aDraggedWellModifiesThePage) {
  window.setCurrentItem(shown.addWells());
  shown.drag(shown.pixelOf({680050, 226030}), shown.pixelOf({680055, 226035}));
  EXPECT_EQ(modified.size(), 1);
}

TEST_F(PageModifiedTest, aMovedPictureModifiesThePage) {
  window.setCurrentItem(shown.addMapPicture());
  shown.drag(shown.pixelOf({680030, 226015}), shown.pixelOf({680035, 226020}));
  EXPECT_EQ(modified.size(), 1);
}

TEST_F(PageModifiedTest, theWheelOnTheMapModifiesThePage) {
  shown.wheel(middle, 1);
  EXPECT_EQ(modified.size(), 1);
}

TEST_F(PageModifiedTest, aKeyThatMovesOrZoomsTheMapModifiesThePage) {
  shown.type(Qt::Key_Left);
  EXPECT_EQ(modified.size(), 1);
  shown.type(Qt::Key_Plus);
  EXPECT_EQ(modified.size(), 2);
}

TEST_F(PageModifiedTest, aClickLeavesThePageUnmodified) {
  shown.addMapPicture();
  shown.click(shown.pixelOf({680030, 226015}));
  shown.click(middle);
  EXPECT_EQ(modified.size(), 0);
}

TEST_F(PageModifiedTest, aDragThatEscapePutsBackLeavesThePageUnmodified) {
  shown.press(middle);
  shown.move(middle + QPointF(40, 0));
  shown.type(Qt::Key_Escape);
  shown.release(middle + QPointF(40, 0));
  EXPECT_EQ(modified.size(), 0);
}

TEST_F(PageModifiedTest, whereTheSheetLiesInTheWindowIsNoPartOfThePage) {
  shown.wheel(middle, 1, Qt::ControlModifier);
  shown.type(Qt::Key_Plus, Qt::ControlModifier);
  shown.drag(middle, middle + QPointF(50, 0), {}, Qt::MiddleButton);
  shown.type(Qt::Key_Home);
  EXPECT_EQ(modified.size(), 0);
}

TEST_F(PageModifiedTest, aMapThatCanNotBeZoomedAnyFurtherLeavesThePageUnmodified) {
  for (int i = 0; i < 200; ++i)
    shown.wheel(middle, 1);
  modified.clear();
  shown.wheel(middle, 1);
  EXPECT_EQ(modified.size(), 0);
}

TEST_F(PageModifiedTest, whatAProgramSetsLeavesThePageUnmodified) {
  window.setItemProperty(ShownPage::map, XMaximum, 680100.0);
  window.setItemProperty(ShownPage::summary, Html, "<b>Results</b>");
  window.setContents(window.contents());
  window.clearContents();
  EXPECT_EQ(modified.size(), 0);
}

TEST_F(PageModifiedTest, aDragThatIsTakenAwayHasModifiedThePage) {
  window.setCurrentItem(shown.addWells());
  shown.press(shown.pixelOf({680050, 226030}));
  shown.move(shown.pixelOf({680055, 226035}));
  window.setCurrentItem(0);
  EXPECT_EQ(modified.size(), 1);
}

} // namespace
