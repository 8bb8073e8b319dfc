#include "desktop/MainWindowTest.h"

namespace TVR::Desktop {
namespace {

using Fit = Page::PageWindow::Fit;

class PageZoomTest : public MainWindowTest {
protected:
  PageZoomTest() {
    start();
    page = addPage();
    QApplication::processEvents();
  }
  double scale() const { return page->view().scale; }

  Page::PageWindow* page = nullptr;
};

TEST_F(PageZoomTest, theKeysShowThePageLargerAndSmaller) {
  const double fitted = scale();
  QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(scale(), 1.25 * fitted, 1e-9);
  QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_NEAR(scale(), fitted, 1e-9);
}

TEST_F(PageZoomTest, theWholePageComesBack) {
  const double fitted = scale();
  action("zoom_in")->trigger();
  action("whole_page")->trigger();
  EXPECT_NEAR(scale(), fitted, 1e-9);
  EXPECT_EQ(page->fit(), Fit::Sheet);
}

TEST_F(PageZoomTest, thePageFillsTheWidthAndGoesOnToDoSo) {
  action("page_width")->trigger();
  const double before = scale() * page->canvas().paperSize().width();
  EXPECT_NEAR(before, page->width() - 36, 1);
  window->resize(window->width() + 100, window->height());
  QApplication::processEvents();
  EXPECT_NEAR(scale() * page->canvas().paperSize().width(), page->width() - 36, 1);
}

TEST_F(PageZoomTest, aHundredPercentIsTheSizeOnPaper) {
  action("actual_size")->trigger();
  EXPECT_NEAR(scale() * 25.4, page->logicalDpiX(), 1e-9);
}

TEST_F(PageZoomTest, theSheetStaysInTheMiddleAtASizeThatStays) {
  page->showScale(2);
  window->resize(window->width() + 100, window->height());
  QApplication::processEvents();
  EXPECT_EQ(scale(), 2);
  const double left = page->view().origin.x();
  EXPECT_NEAR(left + 2 * page->canvas().paperSize().width() + left, page->width(), 1);
}

} // namespace
} // namespace TVR::Desktop
