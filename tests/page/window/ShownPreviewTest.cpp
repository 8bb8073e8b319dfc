#include "page/window/ShownPreview.h"

#include "page/model/ItemWalk.h"
#include "page/painting/PageExport.h"
#include "page/window/ShownPage.h"

#include <gtest/gtest.h>

using namespace TVR::Page;
using namespace Sketra_lib::Property;
using Sketra_lib::PreviewLine;
using Sketra_lib::ResultPreview;

namespace {

/// A map with a grid of four cells in one row, which has an isohypse and an isotherm, and a preview
/// of two cells above it with an isotherm.
class ShownPreviewTest : public testing::Test {
protected:
  ShownPreviewTest() {
    grid = shown.window.addGridData(ShownPage::map, 0);
    set(NodeCount, 10);
    set(CellCount, 4);
    set(ValueCount, 4);
    for (int node = 0; node < 10; ++node)
      set(Node, QVariantList{node, 680010.0 + 10 * (node % 5), 226010.0 + 10 * (node / 5)});
    for (int cell = 0; cell < 4; ++cell) {
      set(Cell, QVariantList{cell, cell, cell + 1, cell + 6, cell + 5});
      for (const int dataSet : {Drawdowns, Temperature}) {
        set(SelectedSet, dataSet);
        set(Value, QVariantList{cell, 680015.0 + 10 * cell, 226015.0, 1.0 * cell});
      }
    }
    for (const int dataSet : {Drawdowns, Temperature}) {
      set(SelectedSet, dataSet);
      set(Levels, QVariantList{1.5});
    }
    set(Name, "Results");
    set(InLegend, true);
    shown.window.refresh(); // what has moved comes to rest
  }

  void set(int property, const QVariant& value) {
    shown.window.setItemProperty(grid, property, value);
  }
  static std::shared_ptr<const ResultPreview> results() {
    auto preview = std::make_shared<ResultPreview>();
    preview->nodes = {{680010, 226040}, {680030, 226040}, {680050, 226040},
                      {680010, 226060}, {680030, 226060}, {680050, 226060}};
    preview->cells = {{0, 1, 4, 3}, {1, 2, 5, 4}};
    preview->centres = {{680020, 226050}, {680040, 226050}};
    preview->drawdowns = {0, 1};
    preview->temperatures = {-1, -3};
    PreviewLine line;
    line.level = -2;
    line.points = QVector<QPointF>{{680030, 226040}, {680030, 226060}};
    line.breaks = {2};
    line.legend = "Isotherm (-2K)";
    line.colour = Qt::magenta;
    preview->lines = {line};
    return preview;
  }
  void show(const std::shared_ptr<const ResultPreview>& preview = results()) {
    shown.window.showPreview(ShownPage::map, grid, preview, "Preview");
  }
  QImage screen() {
    QImage image(shown.window.size(), QImage::Format_RGB32);
    shown.window.render(&image);
    return image;
  }
  QColor at(const QImage& image, const QPointF& place) {
    return image.pixelColor(shown.pixelOf(place).toPoint());
  }
  std::vector<const IsolineItem*> linesOf(const Item& item) {
    std::vector<const IsolineItem*> lines;
    forEach<IsolineItem>(item.children, [&](const IsolineItem& line) { lines.push_back(&line); });
    return lines;
  }

  ShownPage shown;
  int grid = 0;
};

} // namespace

TEST_F(ShownPreviewTest, isDrawnInTheWindowAndOnNoPageThatIsStoredOrExported) {
  const QImage before = screen();
  const QByteArray page = shown.window.contents();
  show();
  const QImage during = screen();
  EXPECT_NE(at(during, {680015, 226045}), at(before, {680015, 226045})) << "cells of the preview";
  EXPECT_EQ(shown.window.contents(), page);
  EXPECT_EQ(shown.window.childItems(ShownPage::map).size(), 1);
  shown.window.endPreview();
  EXPECT_EQ(screen(), before);
}

TEST_F(ShownPreviewTest, aNoticeIsDrawnInTheWindowOnlyAndWhereThereIsNoPreview) {
  const QImage before = screen();
  const QByteArray page = shown.window.contents();
  shown.window.showNotice(ShownPage::map, "Old", "Old, since the depth was changed");
  const QImage noticed = screen();
  EXPECT_NE(noticed, before);
  EXPECT_EQ(shown.window.accessibleDescription(), "Old, since the depth was changed");
  EXPECT_EQ(shown.window.contents(), page);
  show();
  const QImage previewed = screen();
  shown.window.showNotice(ShownPage::map, "", "");
  EXPECT_EQ(screen(), previewed);
  shown.window.endPreview();
  EXPECT_EQ(screen(), before);
}

TEST_F(ShownPreviewTest, aNoticeStaysWhenThePageIsReplaced) {
  shown.window.showNotice(ShownPage::map, "Old", "Old");
  const QImage noticed = screen();
  const QByteArray page = shown.window.contents();
  shown.window.setContents(page);
  EXPECT_EQ(screen(), noticed);
}

TEST_F(ShownPreviewTest, hidesTheCellsOfTheGridThatItReplaces) {
  const QColor background = at(screen(), {680015, 226045});
  EXPECT_NE(at(screen(), {680045, 226012}), background);
  show();
  EXPECT_EQ(at(screen(), {680045, 226012}), background);
}

TEST_F(ShownPreviewTest, leavesTheFormerIsothermsThinAndDashedAndNothingElse) {
  Canvas& canvas = shown.window.canvas();
  const auto& former = *canvas.item<GridDataItem>(grid);
  ASSERT_EQ(linesOf(former).size(), 2u);
  ShownPreview preview;
  preview.show(ShownPage::map, grid, results(), "Preview");
  {
    const LaidPreview laid(canvas, preview);
    const auto lines = linesOf(former);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0]->line.level, 1.5);
    EXPECT_FALSE(lines[0]->line.points.isEmpty());
    EXPECT_EQ(lines[0]->pen.style(), Qt::DashLine);
    EXPECT_LT(lines[0]->pen.widthF(), IsolineItem(0).pen.widthF());
    EXPECT_FALSE(lines[0]->labelsVisible);
    EXPECT_FALSE(lines[0]->inLegend);
    EXPECT_EQ(former.colouredSet(), nullptr);
  }
  EXPECT_EQ(linesOf(former).size(), 2u);
  EXPECT_EQ(linesOf(former)[0]->pen.style(), Qt::SolidLine);
  EXPECT_NE(former.colouredSet(), nullptr);
}

TEST_F(ShownPreviewTest, anIsothermThatIsHiddenStaysHidden) {
  for (const auto& line : linesOf(*shown.window.canvas().item<GridDataItem>(grid)))
    shown.window.setItemProperty(line->id, Visible, false);
  ShownPreview preview;
  preview.show(ShownPage::map, grid, results(), "Preview");
  const LaidPreview laid(shown.window.canvas(), preview);
  EXPECT_TRUE(linesOf(*shown.window.canvas().item<GridDataItem>(grid)).empty());
}

TEST_F(ShownPreviewTest, itsGridIsListedAsTheOneThatItReplaces) {
  ShownPreview preview;
  preview.show(ShownPage::map, grid, results(), "Preview");
  const LaidPreview laid(shown.window.canvas(), preview);
  const auto& laidGrid = dynamic_cast<const GridDataItem&>(*shown.plot().children.back());
  EXPECT_EQ(laidGrid.name, "Results");
  EXPECT_TRUE(laidGrid.inLegend);
  ASSERT_EQ(linesOf(laidGrid).size(), 1u);
  EXPECT_EQ(linesOf(laidGrid)[0]->legendText, "Isotherm (-2K)");
  EXPECT_EQ(linesOf(laidGrid)[0]->pen.color(), QColor(Qt::magenta));
}

TEST_F(ShownPreviewTest, withoutAGridToReplaceLiesOnTheMapAlone) {
  shown.window.removeItem(grid, 0);
  const QColor before = at(screen(), {680015, 226045});
  grid = 0;
  show();
  EXPECT_NE(at(screen(), {680015, 226045}), before);
}

TEST_F(ShownPreviewTest, withoutResultsMarksThePageAsItIs) {
  const QImage before = screen();
  show(nullptr);
  const QImage during = screen();
  EXPECT_NE(during, before);
  EXPECT_EQ(at(during, {680045, 226012}), at(before, {680045, 226012}));
}

TEST_F(ShownPreviewTest, aLongerMarkHasMoreRoom) {
  const auto markedPixels = [this](const QString& mark) {
    shown.window.showPreview(ShownPage::map, grid, nullptr, mark);
    const QImage image = screen();
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        pixels += image.pixelColor(x, y) == QColor(0xff, 0xf4, 0xce);
    return pixels;
  };
  const int ofOneLine = markedPixels("Preview");
  EXPECT_GT(ofOneLine, 0);
  EXPECT_GT(markedPixels(QStringLiteral("Why there is none. ").repeated(12)), 1.5 * ofOneLine);
}

TEST_F(ShownPreviewTest, followsTheMapThatTheUserMoves) {
  show();
  const QColor cells = at(screen(), {680015, 226045});
  shown.window.setItemProperty(ShownPage::map, XMinimum, 680005.0);
  shown.window.setItemProperty(ShownPage::map, XMaximum, 680081.0);
  EXPECT_EQ(at(screen(), {680015, 226045}), cells);
}

TEST_F(ShownPreviewTest, endsWithThePageThatItWasShownOn) {
  const QByteArray page = shown.window.contents();
  show();
  shown.window.setContents(page);
  EXPECT_EQ(shown.window.preview().grid(), nullptr);
  EXPECT_EQ(shown.window.preview().mark(), "");
  show();
  shown.window.clearContents();
  EXPECT_EQ(shown.window.preview().grid(), nullptr);
}

TEST_F(ShownPreviewTest, onAMapThatIsGoneShowsNothing) {
  show();
  shown.window.removeItem(ShownPage::map, 0);
  screen();
  EXPECT_NE(shown.window.preview().grid(), nullptr);
}
