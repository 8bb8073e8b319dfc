#include "gui/PositionPageTest.h"

#include <QLineF>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// Wells at recommended distances of 30 m and 12 m, groundwater that flows to the south, and a map
/// around (500, 700).
class WellPlacingTest : public PositionPageTest {
protected:
  WellPlacingTest() {
    store.setValue(NumberOfWells, 4);
    store.setValue(GroundwaterGradient, 0.5);
    store.setValue(GroundwaterFlowDirection, 180);
    store.setValue(DefaultWellPosition, QPointF(500, 700));
    store.setStored(DMin, 30.0);
    store.setStored(RadiusOfInfluence, 12.0);
    store.wellModel();
  }

  QVector<QPointF> recommended() const { return {{494, 715}, {506, 715}, {494, 685}, {506, 685}}; }
  void expectPositions(const QVector<QPointF>& expected) const {
    ASSERT_EQ(store.wellPositions().size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
      EXPECT_LT(QLineF(store.wellPositions().at(i), expected.at(i)).length(), 1e-9) << i;
  }
  bool canUndo() const { return get<QPushButton>("undoPlacingButton").isEnabled(); }
};

TEST_F(WellPlacingTest, wellsStandInTwoRowsAcrossTheFlowAroundTheMiddleOfTheMap) {
  open();
  redrawn->clear();
  click("placeWellsButton");
  expectPositions(recommended());
  EXPECT_TRUE(answers.shown.isEmpty()) << "nobody had placed them";
  EXPECT_EQ(redrawn->count(), 1);
  EXPECT_NEAR(number(DMinUsed), std::hypot(30, 12), 1e-9);
}

TEST_F(WellPlacingTest, theWellsThatPumpStandUpstream) {
  setRate(0, flow);
  setRate(3, -flow);
  setRate(1, flow);
  open();
  click("placeWellsButton");
  expectPositions({{488, 685}, {500, 685}, {512, 685}, {500, 715}});
}

TEST_F(WellPlacingTest, itAsksBeforeItMovesWellsThatWerePlacedByHand) {
  store.setCells(ProjectTable::Well, {{2, WellColumns::X, 1.0}});
  const QVector<QPointF> before = store.wellPositions();
  open();
  answers.yes = false;
  click("placeWellsButton");
  EXPECT_EQ(answers.shown, QStringList{"Wells that were placed by hand: 1. Move all wells to the "
                                       "recommended places?"});
  EXPECT_EQ(store.wellPositions(), before);
  EXPECT_FALSE(canUndo());
  answers.yes = true;
  click("placeWellsButton");
  expectPositions(recommended());
}

TEST_F(WellPlacingTest, wellsThatItPlacedItselfAreNoneOfAHand) {
  open();
  click("placeWellsButton");
  store.setStored(RadiusOfInfluence, 20.0);
  click("placeWellsButton");
  EXPECT_TRUE(answers.shown.isEmpty());
  expectPositions({{490, 715}, {510, 715}, {490, 685}, {510, 685}});
}

TEST_F(WellPlacingTest, oneClickPutsTheWellsBack) {
  store.setCells(ProjectTable::Well, {{2, WellColumns::X, 1.0}, {2, WellColumns::Y, 2.0}});
  const Wells before = store.enteredWells();
  open();
  const double distance = number(DMinUsed);
  EXPECT_FALSE(canUndo());
  click("placeWellsButton");
  EXPECT_TRUE(canUndo());
  redrawn->clear();
  click("undoPlacingButton");
  EXPECT_TRUE(store.enteredWells() == before);
  EXPECT_EQ(number(DMinUsed), distance);
  EXPECT_EQ(redrawn->count(), 1);
  EXPECT_FALSE(canUndo());
}

TEST_F(WellPlacingTest, wellsThatStoodOnTheDefaultFollowItAgain) {
  open();
  click("placeWellsButton");
  click("undoPlacingButton");
  store.setValue(DefaultWellPosition, QPointF(10, 20));
  EXPECT_EQ(store.wellPositions().at(0), QPointF(10, 20));
}

TEST_F(WellPlacingTest, aWellThatIsMovedEndsTheUndo) {
  open();
  click("placeWellsButton");
  press(wells(), 1, WellModel::X);
  type(wells(), "3");
  key(wells(), Qt::Key_Return);
  EXPECT_FALSE(canUndo());
}

TEST_F(WellPlacingTest, aWellThatIsDraggedEndsTheUndo) {
  open();
  click("placeWellsButton");
  drag(1, {1, 2});
  EXPECT_FALSE(canUndo());
}

TEST_F(WellPlacingTest, anotherWellCountEndsTheUndo) {
  open();
  click("placeWellsButton");
  get<QSpinBox>("wellCountSpinBox").setValue(6);
  EXPECT_FALSE(canUndo());
}

TEST_F(WellPlacingTest, aRateIsNoReasonToEndTheUndo) {
  open();
  click("placeWellsButton");
  setRate(0, -2 * flow);
  click("undoPlacingButton");
  EXPECT_EQ(store.wellPositions().at(0), QPointF(500, 700));
  EXPECT_EQ(store.wells().rate(0), -2 * flow);
}

TEST_F(WellPlacingTest, leavingThePageEndsTheUndo) {
  open();
  click("placeWellsButton");
  wizard->back();
  wizard->next();
  EXPECT_FALSE(canUndo());
}

TEST_F(WellPlacingTest, withoutADesignNothingMoves) {
  store.setStored(DMin, 0.0);
  store.setStored(RadiusOfInfluence, 0.0);
  open();
  const QVector<QPointF> before = store.wellPositions();
  click("placeWellsButton");
  EXPECT_EQ(store.wellPositions(), before);
  EXPECT_EQ(feedback(), red("The design gives no distance between wells yet."));
}

} // namespace
} // namespace TVR::GUI
