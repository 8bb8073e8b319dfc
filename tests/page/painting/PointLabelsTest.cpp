#include "page/painting/PointLabels.h"

#include "page/Painted.h"
#include "page/SamplePage.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

/// A map of 100 m by 100 m on 100 mm by 100 mm without axes, with wells of these names and signs.
std::unique_ptr<PlotItem> map(const QPolygonF& wells, const std::vector<CurveItem::Mark>& marks) {
  auto plot = std::make_unique<PlotItem>(1);
  plot->size = {100, 100};
  plot->x.maximum = plot->y.maximum = 100;
  plot->uniformScale = true;
  plot->pen = plot->axisPen = plot->gridPen = Qt::NoPen;
  auto curve = std::make_unique<CurveItem>(2);
  curve->visible = false;
  curve->points = wells;
  curve->symbol = CurveItem::Circle;
  curve->symbolSize = {25, 25};
  curve->brush = Qt::blue;
  curve->marks = marks;
  plot->children.push_back(std::move(curve));
  return plot;
}

std::vector<QPolygonF> labelsOf(const PlotItem& plot) {
  std::vector<QPolygonF> taken;
  Painted::sheet({100, 100}, [&](QPainter& painter) {
    paintPointLabels(painter, dynamic_cast<const CurveItem&>(*plot.children[0]), plot, taken);
  });
  return taken;
}

QImage drawn(std::unique_ptr<PlotItem> plot) {
  return Painted::item({100, 100}, std::move(plot));
}

QPolygonF at(std::initializer_list<QPointF> points) {
  return QVector<QPointF>(points);
}

TEST(PointLabels, aNameStandsBesideItsPoint) {
  const auto labels = labelsOf(*map(at({{50, 50}}), {{"Pump", CurveItem::WithdrawalWell, ""}}));
  ASSERT_EQ(labels.size(), 1u);
  EXPECT_NEAR(labels[0].boundingRect().left(), 50 + 1.4, 0.3);
  EXPECT_NEAR(labels[0].boundingRect().center().y(), 50, 0.1);
}

TEST(PointLabels, atTheRightEdgeItStandsElsewhere) {
  const auto labels = labelsOf(*map(at({{97, 50}}), {{"Pump", CurveItem::WithdrawalWell, ""}}));
  ASSERT_EQ(labels.size(), 1u);
  EXPECT_TRUE(QRectF(0, 0, 100, 100).contains(labels[0].boundingRect()));
}

TEST(PointLabels, namesOfWellsThatAreCloseDoNotTouch) {
  QPolygonF wells;
  std::vector<CurveItem::Mark> marks;
  for (int i = 0; i < 8; ++i) {
    wells.append({50 + 0.5 * i, 50.0 + i % 2});
    marks.push_back({QString("Well %1").arg(i), CurveItem::InjectionWell, ""});
  }
  const auto labels = labelsOf(*map(wells, marks));
  ASSERT_EQ(labels.size(), 8u);
  for (std::size_t i = 0; i < labels.size(); ++i)
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_FALSE(labels[i].boundingRect().intersects(labels[k].boundingRect()));
}

TEST(PointLabels, ofPointsWithoutNumberOnlyTheFirstAreNamed) {
  const int count = 2 * CurveItem::mostMarksShown;
  const QPolygonF wells(QVector<QPointF>(count, {50, 50}));
  auto plot = map(wells, std::vector<CurveItem::Mark>(count, {"", CurveItem::Circle, ""}));
  dynamic_cast<CurveItem&>(*plot->children[0]).marks.back().text = "Last";
  EXPECT_TRUE(labelsOf(*plot).empty());
}

TEST(PointLabels, aPointOutsideOfTheMapHasNoName) {
  EXPECT_TRUE(labelsOf(*map(at({{150, 50}}), {{"Pump", CurveItem::Circle, ""}})).empty());
}

TEST(PointLabels, pointsWithoutMarksHaveNone) {
  EXPECT_TRUE(labelsOf(*map(at({{50, 50}}), {})).empty());
}

TEST(WellSigns, aWithdrawalWellIsFilledAndAnInjectionWellIsNot) {
  for (const double size : {25., 10.}) {
    const auto colourIn = [size](int sign) {
      auto plot = map(at({{50, 50}}), {{"", sign, ""}});
      dynamic_cast<CurveItem&>(*plot->children[0]).symbolSize = {size, size};
      // Between the arrow and the rim.
      return Painted::at(drawn(std::move(plot)), {50 - size / 10 * 0.3, 50});
    };
    EXPECT_GT(colourIn(CurveItem::WithdrawalWell).blue(),
              colourIn(CurveItem::WithdrawalWell).red() + 100)
        << size;
    EXPECT_GT(colourIn(CurveItem::InjectionWell).red(), 150) << size;
  }
}

TEST(WellSigns, theArrowOfAWithdrawalWellPointsUpAndThatOfAnInjectionWellDown) {
  const auto wide = [](int sign, double y) {
    const QImage image = drawn(map(at({{50, 50}}), {{"", sign, ""}}));
    int pixels = 0;
    for (int x = 490; x <= 510; ++x)
      pixels += (qRed(image.pixel(x, qRound(y * 10))) > 128) == (sign == CurveItem::WithdrawalWell);
    return pixels;
  };
  EXPECT_LT(wide(CurveItem::WithdrawalWell, 49.6), wide(CurveItem::WithdrawalWell, 50.4));
  EXPECT_GT(wide(CurveItem::InjectionWell, 49.6), wide(CurveItem::InjectionWell, 50.4));
}

TEST(WellSigns, aPointWithoutASignLooksAsTheCurveSays) {
  const auto plot = map(at({{50, 50}, {20, 20}}), {{"Idle", CurveItem::NoSymbol, ""}});
  const auto& curve = dynamic_cast<const CurveItem&>(*plot->children[0]);
  EXPECT_EQ(curve.symbolOf(0), CurveItem::Circle);
  EXPECT_EQ(curve.symbolOf(1), CurveItem::Circle);
}

} // namespace
