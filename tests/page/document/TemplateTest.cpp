#include "page/Painted.h"
#include "page/document/PageDocument.h"
#include "page/model/Canvas.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace TVR::Page;

QByteArray resource(const QString& name) {
  QFile file(":/TVR/" + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Place in tenths of a millimetre, as the layout is laid down.
struct Place {
  int id;
  ItemKind kind;
  const char* name;
  int x, y, width, height;
};

const std::vector<Place> a4Items = {
    {1, ItemKind::Text, "Program identification", 100, 1975, 2900, 50},
    {2, ItemKind::Text, "Project address", 75, 1750, 700, 225},
    {3, ItemKind::Plot, "Map view", 75, 75, 1800, 1675},
    {6, ItemKind::Text, "Summary", 1875, 75, 1000, 1250},
    {7, ItemKind::Plot, "Demand plot (rates)", 1875, 1325, 1000, 425},
    {10, ItemKind::Plot, "Demand plot (temperature)", 1875, 1325, 1000, 425},
    {13, ItemKind::Text, "Rate label", 1895, 1660, 125, 90},
    {14, ItemKind::Text, "Temperature label", 2810, 1660, 80, 90},
    {15, ItemKind::Legend, "Map legend", 775, 1750, 1200, 225},
    {16, ItemKind::Text, "Map scale", 1975, 1750, 675, 135},
    {17, ItemKind::Text, "Date", 1975, 1885, 675, 90},
    {18, ItemKind::Picture, "Logo", 2650, 1750, 225, 225},
};

class Template : public testing::TestWithParam<const char*> {
protected:
  void SetUp() override { ASSERT_TRUE(readPage(canvas, resource(document()))); }
  static QString document() {
    return QString("resources/%1_landscape_template.xml").arg(GetParam());
  }
  Canvas canvas;
};

TEST_P(Template, hasTheTwelveItemsInTheirOrder) {
  ASSERT_EQ(canvas.items().size(), a4Items.size());
  for (size_t index = 0; index < a4Items.size(); ++index) {
    EXPECT_EQ(canvas.items()[index]->id, a4Items[index].id);
    EXPECT_EQ(canvas.items()[index]->kind, a4Items[index].kind);
    EXPECT_EQ(canvas.items()[index]->name, a4Items[index].name);
    EXPECT_TRUE(canvas.items()[index]->visible);
  }
}

TEST_P(Template, findsItsItemsByName) {
  for (const Place& place : a4Items)
    EXPECT_EQ(canvas.itemByName(place.name), place.id);
}

/// The line at the foot of the page is as long as its text needs: it runs on beyond the frame.
TEST_P(Template, keepsItsItemsOnTheSheet) {
  const QRectF sheet(QPointF(0, 0), canvas.paperSize());
  for (const std::unique_ptr<Item>& item : canvas.items())
    EXPECT_TRUE(sheet.contains(item->box()) || item->name == "Program identification")
        << item->name.toStdString();
}

TEST_P(Template, laysOnlyTheDemandPlotsAndTheirLabelsOverEachOther) {
  const auto isOverlaid = [](const Item& item) {
    return item.name.startsWith("Demand plot") || item.name.endsWith(" label") ||
           item.name == "Program identification";
  };
  for (const std::unique_ptr<Item>& one : canvas.items())
    for (const std::unique_ptr<Item>& other : canvas.items()) {
      if (one == other || isOverlaid(*one) || isOverlaid(*other))
        continue;
      const QRectF common = one->box().intersected(other->box());
      EXPECT_LT(common.width() * common.height(), 1e-9)
          << one->name.toStdString() << " and " << other->name.toStdString();
    }
}

TEST_P(Template, laysTheDemandPlotsOverEachOtherWithoutBackground) {
  const auto* rates = canvas.item<PlotItem>(7);
  const auto* temperature = canvas.item<PlotItem>(10);
  EXPECT_EQ(rates->box(), temperature->box());
  EXPECT_EQ(rates->area(), temperature->area());
  EXPECT_EQ(rates->brush.style(), Qt::NoBrush);
  EXPECT_EQ(temperature->brush.style(), Qt::NoBrush);
  EXPECT_TRUE(temperature->y.opposite);
  EXPECT_TRUE(temperature->x.hidden);
}

TEST_P(Template, putsTheUnitsIntoTheMarginsOfTheDemandPlots) {
  const QRectF area = canvas.item<PlotItem>(7)->area();
  EXPECT_TRUE(area.intersected(canvas.item(13)->box()).isEmpty());
  EXPECT_TRUE(area.intersected(canvas.item(14)->box()).isEmpty());
}

TEST_P(Template, startsItsMapWithTheRangesAndMarginsLaidDown) {
  const auto* map = canvas.item<PlotItem>(3);
  EXPECT_EQ(map->margins, QMarginsF(18, 10, 10, 10));
  EXPECT_TRUE(map->uniformScale);
  EXPECT_EQ(map->x.minimum, 680800);
  EXPECT_EQ(map->x.maximum, 682320);
  EXPECT_EQ(map->y.minimum, 226700);
  EXPECT_EQ(map->y.maximum, 228180);
  EXPECT_EQ(map->x.step, 500);
  EXPECT_EQ(map->x.subTicks, 4);
}

TEST_P(Template, namesTheUnitsOfItsAxes) {
  EXPECT_EQ(canvas.item<PlotItem>(3)->x.description, "E [m]");
  EXPECT_EQ(canvas.item<PlotItem>(3)->y.description, "N [m]");
  EXPECT_EQ(canvas.item<PlotItem>(7)->x.description, "Months");
  EXPECT_EQ(canvas.item<PlotItem>(10)->x.description, ""); // lies over the other
}

TEST_P(Template, hasScaleBarAndNorthArrowAboveItsMapAtAllMapScales) {
  auto* map = canvas.item<PlotItem>(3);
  const QRectF area = map->area();
  const QRectF strip(area.left() - 3, map->box().top() + 0.2, area.width() + 6, 9.5);
  for (const double scale : {500., 2500., 25000.}) {
    map->x.maximum = map->x.minimum + area.width() * scale / 1000;
    map->y.maximum = map->y.minimum + area.height() * scale / 1000;
    const QImage image = Painted::sheet(canvas.paperSize().toSize(),
                                        [&](QPainter& painter) { paintPage(painter, canvas); });
    const QRectF bar = Painted::inkBox(image, strip.adjusted(0, 0, -strip.width() / 2, 0));
    EXPECT_GT(bar.width(), 20) << scale;
    EXPECT_GT(bar.top(), strip.top() + 0.1) << scale;
    const QRectF arrow = Painted::inkBox(image, strip.adjusted(strip.width() / 2, 0, 0, 0));
    EXPECT_GT(arrow.height(), 7) << scale;
    EXPECT_GT(arrow.top(), strip.top() + 0.1) << scale;
  }
}

TEST_P(Template, countsNewItemsFromBehindItsOwn) {
  EXPECT_EQ(canvas.addGridData(3), 19);
}

TEST_P(Template, isWrittenBackAsItStands) {
  EXPECT_EQ(writePage(canvas).toStdString(), resource(document()).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Sheets, Template, testing::Values("a4", "a3"),
                         [](const auto& sheet) { return std::string(sheet.param); });

TEST(TemplateA4, hasItsItemsWhereTheyBelong) {
  Canvas canvas;
  ASSERT_TRUE(readPage(canvas, resource("resources/a4_landscape_template.xml")));
  EXPECT_EQ(canvas.paperSize(), QSizeF(297, 210));
  for (const Place& place : a4Items)
    EXPECT_EQ(canvas.item(place.id)->box(),
              QRectF(place.x / 10.0, place.y / 10.0, place.width / 10.0, place.height / 10.0))
        << place.name;
}

TEST(TemplateA3, isTheSamePageOnALargerSheet) {
  Canvas canvas;
  ASSERT_TRUE(readPage(canvas, resource("resources/a3_landscape_template.xml")));
  EXPECT_EQ(canvas.paperSize(), QSizeF(420, 297));
  EXPECT_TRUE(resource("resources/a3_landscape_template.xml").contains("Format=\"8\""));
  EXPECT_NEAR(canvas.item(3)->size.width(), 180 * 420 / 297.0, 0.5);
}

} // namespace
