#include "gui/positions/SpokenTable.h"

#include "gui/PositionPageTest.h"

#include <QAccessible>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// The tables of the page as assistive technologies find them.
class SpokenTableTest : public PositionPageTest {
protected:
  static QAccessibleInterface& spoken(QTableView& table) {
    return *QAccessible::queryAccessibleInterface(&table);
  }
  static QAccessibleInterface* cellOf(QTableView& table, int row, int column) {
    return spoken(table).tableInterface()->cellAt(row, column);
  }
  static std::string name(QTableView& table, int row, int column) {
    return cellOf(table, row, column)->text(QAccessible::Name).toStdString();
  }
};

TEST_F(SpokenTableTest, ratesAreSpokenInTheUnitThatIsShown) {
  open();
  EXPECT_DOUBLE_EQ(wells().model()->index(0, WellModel::Rate).data().toDouble(), -0.36); // [m3/h]
  EXPECT_EQ(name(wells(), 0, WellModel::Rate), "-6.000 l/min");
  EXPECT_EQ(name(wells(), 1, WellModel::Rate), "6.000 l/min");
}

TEST_F(SpokenTableTest, cellsAreSpokenAsTheyAreShown) {
  open();
  EXPECT_EQ(name(wells(), 1, WellModel::Name), "Well 2");
  EXPECT_EQ(name(wells(), 1, WellModel::TemperatureChange), "3 K");
  EXPECT_EQ(name(wells(), 0, WellModel::TemperatureChange), "") << "which shows nothing";
}

TEST_F(SpokenTableTest, periodsAreSpokenInTheUnitOfTimeThatIsChosen) {
  openWithPeriods(2);
  press(wells(), 1, WellModel::Name);
  EXPECT_EQ(name(periods(), 0, WellDemandModel::Duration), "4383 h");
  periods().actions().at(1)->trigger();
  EXPECT_EQ(name(periods(), 0, WellDemandModel::Duration), "183 d");
  EXPECT_EQ(name(periods(), 0, WellDemandModel::Rate), "6.000 l/min");
}

TEST_F(SpokenTableTest, cellsKnowTheirHeadingsAndWhatMayBeDoneWithThem) {
  open();
  press(wells(), 1, WellModel::Rate);
  QAccessibleInterface* const rate = cellOf(wells(), 1, WellModel::Rate);
  EXPECT_EQ(rate->role(), QAccessible::Cell);
  EXPECT_TRUE(rate->state().editable);
  EXPECT_TRUE(rate->state().selected);
  EXPECT_FALSE(cellOf(wells(), 0, WellModel::TemperatureChange)->state().editable);
  const auto headings = rate->tableCellInterface()->columnHeaderCells();
  ASSERT_EQ(headings.size(), 1);
  EXPECT_EQ(headings[0]->text(QAccessible::Name), "Mean annual rate");
  EXPECT_EQ(headings[0]->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(rate->parent(), &spoken(wells()));
}

TEST_F(SpokenTableTest, theCellThatTheLibraryTellsOfIsTheOneThatHasTheFocus) {
  open();
  press(wells(), 1, WellModel::X);
  // So the library numbers the cells when it tells where the focus is.
  const int child = (1 + 1) * (WellModel::ColumnCount + 1) + WellModel::X + 1;
  QAccessibleInterface* const current = spoken(wells()).child(child);
  EXPECT_EQ(current, cellOf(wells(), 1, WellModel::X));
  EXPECT_EQ(spoken(wells()).indexOfChild(current), child);
  const QPoint place = current->rect().center();
  EXPECT_EQ(spoken(wells()).childAt(place.x(), place.y()), current);
}

TEST_F(SpokenTableTest, aCellThatIsGoneSaysNothing) {
  open();
  QAccessibleInterface* const last = cellOf(wells(), 1, WellModel::Rate);
  get<QSpinBox>("wellCountSpinBox").setValue(1);
  EXPECT_FALSE(last->isValid());
  EXPECT_EQ(last->text(QAccessible::Name), "");
  EXPECT_EQ(spoken(wells()).tableInterface()->cellAt(1, 0), nullptr);
  EXPECT_EQ(spoken(wells()).tableInterface()->rowCount(), 1);
}

} // namespace
} // namespace TVR::GUI
