#include "page/document/PageDocument.h"

#include "page/PageSamples.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

/// A stored grid with one line of drawdowns, as the page of another project holds it.
QDomElement storedGrid() {
  Canvas other;
  readPage(other, Samples::smallPage());
  const int grid = Samples::addGrid(other, 4, 2);
  other.setProperty(grid, Levels, QVariantList{2.0});
  QDomDocument document;
  document.setContent(writePage(other));
  const QDomNodeList items = document.elementsByTagName("Item");
  for (int index = 0; index < items.count(); ++index)
    if (items.at(index).toElement().attribute("Type") == "GraphicsGridDataItem")
      return items.at(index).toElement();
  return {};
}

class PageDocument : public testing::Test {
protected:
  bool load(const QString& items) { return readPage(canvas, Samples::page(items)); }
  Canvas canvas;
};

TEST_F(PageDocument, lengthsAreTenthsOfAMillimetre) {
  ASSERT_TRUE(load(Samples::item(1, "GraphicsTextItem", "Text")));
  EXPECT_EQ(canvas.item(1)->position, QPointF(7.5, 8));
  EXPECT_EQ(canvas.item(1)->size, QSizeF(180, 167.5));
}

TEST_F(PageDocument, theSheetIsInCentimetres) {
  readPage(canvas,
           "<CanvasEx bgColor=\"#ffee00\"><Pagesize Width=\"42\" Height=\"29.7\"/></CanvasEx>");
  EXPECT_EQ(canvas.paperSize(), QSizeF(420, 297));
  EXPECT_EQ(canvas.background(), QColor(0xff, 0xee, 0x00));
}

TEST_F(PageDocument, aPlaceOnAMapIsInItsOwnUnits) {
  load(Samples::item(1, "GraphicsPlotItem", "Map"));
  const int picture = canvas.addPicture(1, {680800, 227000}, {500, 300});
  canvas.setProperty(picture, InMapCoordinates, 1);
  EXPECT_TRUE(writePage(canvas).contains("X=\"680800\""));
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_EQ(again.item(picture)->box(), QRectF(680800, 227000, 500, 300));
}

TEST_F(PageDocument, whatIsNotKnownSurvives) {
  const QString unknown =
      "<Item id=\"1\" Type=\"GraphicsTextItem\" Shadow=\"deep\"><Name Lang=\"de\">Text</Name>"
      "<Future Kind=\"7\"><Part>of it</Part></Future><!-- a remark --></Item>"
      "<Item id=\"2\" Type=\"GraphicsClockItem\"><Name>Clock</Name><Hand Hour=\"3\"/></Item>";
  ASSERT_TRUE(readPage(canvas, "<CanvasEx Colour=\"warm\"><PrintSettings Copies=\"2\"/><Items>" +
                                   unknown.toUtf8() + "</Items><Layer Name=\"one\"/></CanvasEx>"));
  EXPECT_EQ(canvas.itemByName("Clock"), 2);
  EXPECT_EQ(canvas.item(2)->kind, ItemKind::Other);
  Canvas again;
  readPage(again, writePage(canvas));
  const QString saved = writePage(again);
  for (const char* kept :
       {"Colour=\"warm\"", "Copies=\"2\"", "Shadow=\"deep\"", "Lang=\"de\"", "<Part>of it</Part>",
        "a remark", "Type=\"GraphicsClockItem\"", "<Hand Hour=\"3\"/>", "<Layer Name=\"one\"/>"})
    EXPECT_TRUE(saved.contains(kept)) << kept;
}

TEST_F(PageDocument, whatIsNotKnownStaysBeforeWhatFollowsIt) {
  load("<Item id=\"1\" Type=\"GraphicsTextItem\"><Future/><Name>Text</Name></Item>");
  const QByteArray saved = writePage(canvas);
  EXPECT_LT(saved.indexOf("<Future/>"), saved.indexOf("<Name>"));
}

TEST_F(PageDocument, aRemovedItemIsNotWritten) {
  load(Samples::item(1, "GraphicsTextItem", "Gone") + Samples::item(2, "GraphicsTextItem", "Here"));
  canvas.removeItem(1);
  EXPECT_FALSE(writePage(canvas).contains("Gone"));
  EXPECT_TRUE(writePage(canvas).contains("Here"));
}

TEST_F(PageDocument, itemsAreNestedInTheChildrenOfTheirs) {
  load("<Item id=\"1\" Type=\"GraphicsPlotItem\"><Children>" +
       Samples::item(5, "GraphicsCurveItem", "Wells") + "</Children></Item>");
  EXPECT_EQ(canvas.childItems(1), QList<int>({5}));
  EXPECT_EQ(canvas.item(5)->parent, canvas.item(1));
}

TEST_F(PageDocument, rubbishLeavesAnEmptyPage) {
  for (const char* rubbish : {"", "no page", "<a/>", "<CanvasEx>", "<CanvasEx/><CanvasEx/>",
                              "<CanvasEx a=\"1\" a=\"2\"/>", "\x00\xff\xfe"}) {
    load(Samples::item(1, "GraphicsTextItem", "Text"));
    EXPECT_FALSE(readPage(canvas, rubbish)) << rubbish;
    EXPECT_TRUE(canvas.items().empty());
    EXPECT_EQ(canvas.item(1), nullptr);
  }
}

TEST_F(PageDocument, aPageWithoutItemsIsAPage) {
  EXPECT_TRUE(readPage(canvas, "<CanvasEx/>"));
  EXPECT_TRUE(canvas.items().empty());
}

TEST_F(PageDocument, isReadInOneChange) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  readPage(canvas, Samples::smallPage());
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(PageDocument, anIdThatIsTakenIsReplaced) {
  load(Samples::item(7, "GraphicsTextItem", "One") + Samples::item(7, "GraphicsTextItem", "Two"));
  EXPECT_EQ(canvas.itemByName("One"), 7);
  EXPECT_GE(canvas.itemByName("Two"), 19);
}

TEST_F(PageDocument, anIdThatIsNoneIsReplaced) {
  for (const char* id : {"0", "-4", "x", "99999999999", "2147483647"}) {
    load(QString("<Item id=\"%1\" Type=\"GraphicsTextItem\"><Name>T</Name></Item>").arg(id));
    EXPECT_EQ(canvas.itemByName("T"), 19) << id;
  }
}

TEST_F(PageDocument, newIdsComeAfterAllThatAreThere) {
  readPage(canvas, "<CanvasEx NextItemId=\"3\"><Items><Item id=\"44\" Type=\"GraphicsPlotItem\"/>"
                   "<Item Type=\"GraphicsTextItem\"><Name>T</Name></Item></Items></CanvasEx>");
  EXPECT_EQ(canvas.itemByName("T"), 45);
  EXPECT_EQ(canvas.addGridData(44), 46);
}

TEST_F(PageDocument, propertiesWithoutFieldAreKept) {
  load(Samples::item(1, "GraphicsTextItem", "Text"));
  const std::map<int, QVariant> values = {
      {TextAnchor, 0},
      {201, true},
      {202, 1.25},
      {203, "text\r\n"},
      {204, QColor(1, 2, 3, 4)},
      {205, QVariantList{1, "two", QVariantList{3.0}}},
      {206, QVariantMap{{"Pen", QPen(Qt::red, 0.3)}, {"Font", QFont("Arial", 7)}}},
      {207, QPointF(1.5, 2.5)},
      {208, QSizeF(3, 4)},
      {209, QBrush(Qt::green)},
      {210, Samples::line({{1, 2}, {3, 4}})}};
  for (const auto& [number, value] : values)
    canvas.setProperty(1, number, value);
  Canvas again;
  readPage(again, writePage(canvas));
  for (const auto& [number, value] : values)
    EXPECT_EQ(again.property(1, number), value) << number;
  EXPECT_EQ(writePage(again).toStdString(), writePage(canvas).toStdString());
}

TEST_F(PageDocument, aPropertyThatHasNoFormInTheDocumentIsLeftOut) {
  load(Samples::item(1, "GraphicsTextItem", "Text"));
  canvas.setProperty(1, 201, QVariant::fromValue(static_cast<QObject*>(&canvas)));
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_FALSE(again.property(1, 201).isValid());
  EXPECT_EQ(writePage(again).toStdString(), writePage(canvas).toStdString());
}

TEST_F(PageDocument, anImportedGridGetsIdsOfItsOwn) {
  readPage(canvas, Samples::smallPage());
  const int own = Samples::addGrid(canvas, 2, 2);
  canvas.setProperty(own, Levels, QVariantList{1.0});
  const int imported = importItem(canvas, Samples::map, storedGrid());
  ASSERT_GT(imported, own);
  EXPECT_EQ(canvas.childItems(Samples::map).last(), imported);
  EXPECT_EQ(canvas.item<GridDataItem>(imported)->mesh.cells.size(), 8U);
  EXPECT_TRUE(canvas.item<GridDataItem>(imported)->isImported);
  EXPECT_FALSE(canvas.item<GridDataItem>(own)->isImported);
  const QList<int> lines = canvas.childItems(imported);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_EQ(canvas.property(imported, IsolineIds).toList(), QVariantList({lines[0]}));
  EXPECT_EQ(canvas.childItems(own).size(), 1);
  EXPECT_NE(canvas.childItems(own)[0], lines[0]);
}

TEST_F(PageDocument, anImportedGridIsKnownAsOneWhenThePageIsReadAgain) {
  readPage(canvas, Samples::smallPage());
  const int own = Samples::addGrid(canvas, 2, 2);
  const int imported = importItem(canvas, Samples::map, storedGrid());
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_FALSE(again.item<GridDataItem>(own)->isImported);
  EXPECT_TRUE(again.item<GridDataItem>(imported)->isImported);
}

TEST_F(PageDocument, anImportLeavesTheStoredElementAsItWas) {
  readPage(canvas, Samples::smallPage());
  const QDomElement stored = storedGrid();
  const QDomDocument document = stored.ownerDocument();
  const QString before = document.toString();
  importItem(canvas, Samples::map, stored);
  EXPECT_EQ(document.toString(), before);
}

TEST_F(PageDocument, twoImportsOfOneElementAreTwoItems) {
  readPage(canvas, Samples::smallPage());
  const QDomElement stored = storedGrid();
  const int first = importItem(canvas, Samples::map, stored);
  const int second = importItem(canvas, Samples::map, stored);
  EXPECT_GT(second, first);
  EXPECT_NE(canvas.childItems(first), canvas.childItems(second));
}

TEST_F(PageDocument, anImportedItemIsSavedWithThePage) {
  readPage(canvas, Samples::smallPage());
  const int imported = importItem(canvas, Samples::map, storedGrid());
  Canvas again;
  readPage(again, writePage(canvas));
  EXPECT_EQ(again.childItems(Samples::map), QList<int>({imported}));
}

TEST_F(PageDocument, onlyAnItemBelowAPlotIsImported) {
  readPage(canvas, Samples::smallPage());
  const QDomElement stored = storedGrid();
  EXPECT_EQ(importItem(canvas, Samples::summary, stored), 0);
  EXPECT_EQ(importItem(canvas, 999, stored), 0);
  EXPECT_EQ(importItem(canvas, Samples::map, stored.firstChildElement("Name")), 0);
  EXPECT_EQ(importItem(canvas, Samples::map, QDomElement()), 0);
  EXPECT_TRUE(canvas.childItems(Samples::map).isEmpty());
}

TEST_F(PageDocument, anImportOnAPageThatWasNeverReadIsSavedToo) {
  Canvas fresh;
  QDomDocument document;
  document.setContent(Samples::smallPage());
  readPage(fresh, "<CanvasEx/>");
  fresh.clear();
  EXPECT_EQ(importItem(fresh, 1, storedGrid()), 0);
  EXPECT_TRUE(writePage(fresh).contains("<CanvasEx"));
}

} // namespace
