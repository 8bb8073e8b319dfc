#include "gui/PositionPageTest.h"
#include "store/Journal.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// Counts the changes of a project.
class CountedChanges final : public Data::Journal {
public:
  explicit CountedChanges(Data::Manager& store) : store_(store) { store_.addJournal(this); }
  ~CountedChanges() override { store_.removeJournal(this); }

  void record(const Data::JournalEntry&) override { ++count; }

  int count = 0;

private:
  Data::Manager& store_;
};

class WellTablesTest : public PositionPageTest {
protected:
  WellTablesTest() { QApplication::clipboard()->clear(); }

  /// Pastes a text at a cell.
  void paste(QTableView& table, int row, int column, const QString& text) {
    press(table, row, column);
    QApplication::clipboard()->setText(text);
    key(table, Qt::Key_V, Qt::ControlModifier);
  }
  /// Pastes a text that is to be refused, which must change nothing; what is said of it.
  QString refusalOf(QTableView& table, int row, int column, const QString& text) {
    press(table, row, column);
    const Project before = store.project();
    get<QLabel>("feedback_page1").clear();
    QApplication::clipboard()->setText(text);
    key(table, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(store.project() == before) << "changed by " << text.toStdString();
    QString said = feedback();
    const QString wrapped = red("Nothing was pasted. %1");
    const int begin = wrapped.indexOf("%1");
    EXPECT_TRUE(said.startsWith(wrapped.left(begin))) << said.toStdString();
    said = said.mid(begin);
    said.chop(wrapped.size() - begin - 2);
    return said.replace("&quot;", "'");
  }
  /// Presses the mouse on a cell, moves it over places of the viewport and releases it at the last.
  static void dragTo(QTableView& table, const QModelIndex& from, const QVector<QPoint>& places) {
    QWidget& cells = *table.viewport();
    QTest::mousePress(&cells, Qt::LeftButton, {}, table.visualRect(from).center());
    for (const QPoint& place : places) {
      QMouseEvent move(QEvent::MouseMove, place, cells.mapToGlobal(place), Qt::NoButton,
                       Qt::LeftButton, {});
      QApplication::sendEvent(&cells, &move);
    }
    QTest::mouseRelease(&cells, Qt::LeftButton, {}, places.last());
  }
  static void dragAcross(QTableView& table, const QModelIndex& from, const QModelIndex& to) {
    const QPoint end = table.visualRect(to).center();
    dragTo(table, from, {(table.visualRect(from).center() + end) / 2, end});
  }
  QString copied(QTableView& table) {
    key(table, Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
  }
};

TEST_F(WellTablesTest, aTypedCommaIsAPoint) {
  open();
  press(wells(), 0, WellModel::X);
  type(wells(), "12,5");
  key(wells(), Qt::Key_Tab);
  type(wells(), ",25");
  key(wells(), Qt::Key_Return);
  EXPECT_EQ(store.wellPositions().at(0), QPointF(12.5, 0.25));
  press(wells(), 0, WellModel::Name);
  type(wells(), "a, b");
  key(wells(), Qt::Key_Return);
  EXPECT_EQ(wells().model()->index(0, WellModel::Name).data().toString(), "a, b");
}

TEST_F(WellTablesTest, enterTakesWhatWasTypedAndGoesDown) {
  open();
  press(wells(), 0, WellModel::X);
  type(wells(), "12.5");
  key(wells(), Qt::Key_Return);
  EXPECT_EQ(store.wellPositions().at(0).x(), 12.5);
  EXPECT_EQ(cell(wells()), QPoint(1, WellModel::X));
  type(wells(), "14");
  key(wells(), Qt::Key_Enter);
  EXPECT_EQ(store.wellPositions().at(1).x(), 14);
  EXPECT_EQ(cell(wells()), QPoint(1, WellModel::X)) << "there is no row below";
  EXPECT_TRUE(wizard->isVisible()) << "Enter is no order to finish";
}

TEST_F(WellTablesTest, tabTakesWhatWasTypedAndGoesRight) {
  open();
  press(wells(), 0, WellModel::Name);
  type(wells(), "north");
  key(wells(), Qt::Key_Tab);
  type(wells(), "1");
  key(wells(), Qt::Key_Tab);
  type(wells(), "2");
  key(wells(), Qt::Key_Tab);
  type(wells(), "-9");
  key(wells(), Qt::Key_Tab);
  EXPECT_EQ(store.wells().name(0), "north");
  EXPECT_EQ(store.wellPositions().at(0), QPointF(1, 2));
  EXPECT_EQ(store.wells().rate(0), -9 / 60.0 / 1000.0);
  EXPECT_EQ(cell(wells()), QPoint(0, WellModel::TemperatureChange));
  key(wells(), Qt::Key_Tab);
  EXPECT_EQ(cell(wells()), QPoint(1, WellModel::Name));
  key(wells(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(cell(wells()), QPoint(0, WellModel::TemperatureChange));
}

TEST_F(WellTablesTest, tabBehindTheLastCellLeavesTheTable) {
  open();
  press(wells(), 1, WellModel::TemperatureChange);
  key(wells(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &get<QWidget>("placeWellsButton"));
  press(wells(), 0, WellModel::Name);
  key(wells(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &get<QWidget>("wellCountSpinBox"));
}

TEST_F(WellTablesTest, controlTabLeavesTheTableAtOnceAndTakesWhatWasTyped) {
  open();
  press(wells(), 0, WellModel::X);
  type(wells(), "3");
  key(wells(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), &get<QWidget>("placeWellsButton"));
  EXPECT_EQ(store.wellPositions().at(0).x(), 3);
}

TEST_F(WellTablesTest, upAndDownTakeWhatWasTypedAndMove) {
  open();
  press(wells(), 0, WellModel::Y);
  type(wells(), "5");
  key(wells(), Qt::Key_Down);
  EXPECT_EQ(store.wellPositions().at(0).y(), 5);
  EXPECT_EQ(cell(wells()), QPoint(1, WellModel::Y));
  type(wells(), "6");
  key(wells(), Qt::Key_Up);
  EXPECT_EQ(store.wellPositions().at(1).y(), 6);
  EXPECT_EQ(cell(wells()), QPoint(0, WellModel::Y));
}

TEST_F(WellTablesTest, escapeDropsWhatWasTyped) {
  open();
  press(wells(), 0, WellModel::X);
  type(wells(), "5");
  key(wells(), Qt::Key_Escape);
  EXPECT_EQ(store.wellPositions().at(0).x(), 0);
}

TEST_F(WellTablesTest, walkingThroughTheTableChangesNothing) {
  store.setCells(ProjectTable::Well,
                 {{0, WellColumns::X, 681000.123456}, {1, WellColumns::Y, 0.00001}});
  open();
  const Project before = store.project();
  press(wells(), 0, WellModel::Name);
  for (int i = 0; i < 9; ++i)
    key(wells(), Qt::Key_Tab);
  EXPECT_EQ(cell(wells()), QPoint(1, WellModel::TemperatureChange));
  EXPECT_TRUE(store.project() == before);
}

TEST_F(WellTablesTest, typingBeginsToEditACellOfThePeriods) {
  openWithPeriods(2);
  press(wells(), 1, WellModel::Name);
  press(periods(), 0, WellDemandModel::Rate);
  type(periods(), "7");
  key(periods(), Qt::Key_Return);
  EXPECT_EQ(store.wells().rate(1, 0), 7 / 60.0 / 1000.0);
  EXPECT_EQ(cell(periods()), QPoint(1, WellDemandModel::Rate));
  key(periods(), Qt::Key_Return);
  EXPECT_TRUE(wizard->isVisible());
  EXPECT_EQ(feedback(), "") << "Enter is no order to finish";
}

TEST_F(WellTablesTest, numbersHaveAPointInEveryLanguage) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  open();
  press(wells(), 0, WellModel::X);
  type(wells(), "1.5");
  key(wells(), Qt::Key_Return);
  QLocale::setDefault(before);
  EXPECT_EQ(store.wellPositions().at(0).x(), 1.5);
}

TEST_F(WellTablesTest, deleteEmptiesNothingAndSaysSo) {
  openWithPeriods(2);
  press(wells(), 0, WellModel::Name);
  press(periods(), 0, WellDemandModel::Rate);
  const Project before = store.project();
  for (const Qt::Key deleting : {Qt::Key_Delete, Qt::Key_Backspace}) {
    get<QLabel>("feedback_page1").clear();
    key(periods(), deleting);
    EXPECT_EQ(feedback(), red("A cell cannot be emptied. Type another value instead."));
  }
  EXPECT_TRUE(store.project() == before);
}

TEST_F(WellTablesTest, selectedCellsAreCopiedAsTheyAreShown) {
  store.setCells(
      ProjectTable::Well,
      {{0, WellColumns::Name, "a\tb"}, {0, WellColumns::X, 681000.125}, {1, WellColumns::Y, -0.5}});
  setRate(0, -0.00002505);
  open();
  press(wells(), 0, WellModel::Name);
  wells().selectAll();
  EXPECT_EQ(copied(wells()), "\"a\tb\"\t681000.125\t0\t-1.503\t\n"
                             "Well 2\t0\t-0.5\t6\t3");
}

TEST_F(WellTablesTest, aPartOfTheCellsIsCopiedAsTheBlockAroundThem) {
  open();
  press(wells(), 0, WellModel::X);
  key(wells(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(copied(wells()), "0\n0");
  wells().selectionModel()->select(wells().model()->index(0, WellModel::X),
                                   QItemSelectionModel::ClearAndSelect);
  wells().selectionModel()->select(wells().model()->index(1, WellModel::Rate),
                                   QItemSelectionModel::Select);
  EXPECT_EQ(copied(wells()), "0\t\t\n\t\t6");
}

TEST_F(WellTablesTest, cellsAreSelectedByDraggingTheMouse) {
  open();
  store.setCells(ProjectTable::Well, {{0, WellColumns::X, 1.5}, {1, WellColumns::Y, 2.5}});
  dragAcross(wells(), wells().model()->index(0, WellModel::X),
             wells().model()->index(1, WellModel::Rate));
  EXPECT_EQ(wells().selectionModel()->selectedIndexes().size(), 6);
  EXPECT_EQ(copied(wells()), "1.5\t0\t-6\n0\t2.5\t6");
}

TEST_F(WellTablesTest, aDragBeyondTheEdgeGoesOnToFurtherRows) {
  store.setValue(NumberOfWells, 40);
  open();
  const int lastSeen = wells().rowAt(wells().viewport()->height() - 1);
  const QPoint below(5, 10000);
  dragTo(wells(), wells().model()->index(0, WellModel::Name), {below, below, below});
  const QModelIndex further = wells().model()->index(lastSeen + 2, WellModel::Name);
  EXPECT_TRUE(wells().selectionModel()->isSelected(further));
  EXPECT_GT(wells().verticalScrollBar()->value(), 0);
}

TEST_F(WellTablesTest, aPressThatTremblesKeepsItsEditor) {
  open();
  const QModelIndex cell = wells().model()->index(0, WellModel::X);
  const QPoint middle = wells().visualRect(cell).center();
  dragTo(wells(), cell, {middle + QPoint(1, 1)});
  type(wells(), "7");
  key(wells(), Qt::Key_Return);
  EXPECT_EQ(store.wellPositions().at(0).x(), 7);
}

TEST_F(WellTablesTest, periodsAreSelectedByDraggingTheMouse) {
  openWithPeriods(2);
  press(wells(), 1, WellModel::Name);
  dragAcross(periods(), periods().model()->index(1, WellDemandModel::Rate),
             periods().model()->index(0, WellDemandModel::Duration));
  EXPECT_EQ(copied(periods()), "4383\t6\n4383\t0");
}

TEST_F(WellTablesTest, theNumberInAnEditorIsCopiedWithoutItsUnit) {
  open();
  press(wells(), 1, WellModel::Rate);
  EXPECT_EQ(copied(wells()), "6");
}

TEST_F(WellTablesTest, aBlockIsPastedFromTheCurrentCellOnAsOneChange) {
  open();
  press(wells(), 0, WellModel::X);
  QApplication::clipboard()->setText("1,5\t2\t-6\t\r\n3\t4,25\t6\t-4\r\n");
  redrawn->clear();
  CountedChanges changes(store);
  key(wells(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(changes.count, 1);
  EXPECT_EQ(redrawn->count(), 1);
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{1.5, 2}, {3, 4.25}}));
  EXPECT_EQ(store.wells().rate(0), -6 / 60.0 / 1000.0);
  EXPECT_EQ(store.wells().rate(1), 6 / 60.0 / 1000.0);
  EXPECT_EQ(store.wells().temperatureChange(1), -4);
  EXPECT_EQ(feedback(), "");
}

TEST_F(WellTablesTest, aBlockIsPastedFromTheFirstSelectedCellOn) {
  open();
  dragAcross(wells(), wells().model()->index(1, WellModel::Y),
             wells().model()->index(0, WellModel::X));
  QApplication::clipboard()->setText("1\t2\n3\t4");
  key(wells(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(feedback(), "");
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{1, 2}, {3, 4}}));
}

TEST_F(WellTablesTest, namesArePastedWithTheirQuotes) {
  open();
  paste(wells(), 0, WellModel::Name, "\"say \"\"x\"\"\"\t1\n\"two\nlines\"\t2\n");
  EXPECT_EQ(store.wells().name(0), "say \"x\"");
  EXPECT_EQ(store.wells().name(1), "two lines");
}

TEST_F(WellTablesTest, aSingleTextIsPastedIntoTheEditorOfAName) {
  open();
  press(wells(), 0, WellModel::Name);
  QApplication::clipboard()->setText("north");
  key(wells(), Qt::Key_V, Qt::ControlModifier);
  auto* const editor = qobject_cast<QLineEdit*>(&keysOf(wells()));
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->text(), "north");
}

TEST_F(WellTablesTest, whatWasCopiedIsPastedWithoutAnyChangeOfValue) {
  store.setCells(ProjectTable::Well, {{0, WellColumns::X, 681000.123456789}});
  setRate(0, -0.1 / 17); // which is another number after two conversions
  setRate(1, 0.1 / 17);
  open();
  press(wells(), 0, WellModel::Name);
  wells().selectAll();
  const QString text = copied(wells());
  const Wells before = store.enteredWells();
  paste(wells(), 0, WellModel::Name, text);
  EXPECT_TRUE(store.enteredWells().rates == before.rates);
  EXPECT_TRUE(store.enteredWells().positions.at(0).x() == before.positions.at(0).x());
  EXPECT_EQ(feedback(), "");
}

TEST_F(WellTablesTest, periodsArePastedInTheUnitShown) {
  openWithPeriods(2);
  press(wells(), 1, WellModel::Name);
  periods().actions().at(1)->trigger();
  paste(periods(), 0, WellDemandModel::Duration, "100\t3\t2,5\n265\t-4,5\t\n");
  EXPECT_EQ(feedback(), "");
  EXPECT_EQ(store.enteredDurations().value(0), 100 * 86400.0);
  EXPECT_EQ(store.enteredDurations().value(1), 265 * 86400.0);
  EXPECT_EQ(store.wells().rate(1, 0), 3 / 60.0 / 1000.0);
  EXPECT_EQ(store.wells().rate(1, 1), -4.5 / 60.0 / 1000.0);
  EXPECT_EQ(store.wells().temperatureChange(1, 0), 2.5);
  EXPECT_TRUE(store.enteredWells().periodRates.value(0).isEmpty()) << "the other well";
  press(periods(), 1, WellDemandModel::Duration);
  EXPECT_EQ(copied(periods()), "265");
}

TEST_F(WellTablesTest, theNameBesidePeriodsMayOnlyBeTheirOwn) {
  openWithPeriods(2);
  press(wells(), 1, WellModel::Name);
  paste(periods(), 0, WellDemandModel::Name, "Well 2\t1\nWell 2\t2");
  EXPECT_EQ(feedback(), "");
  EXPECT_EQ(store.enteredDurations().value(0), 3600);
  EXPECT_EQ(refusalOf(periods(), 0, WellDemandModel::Name, "Well 2\t1\nWell 1\t2"),
            "Row 2, column 'Name': the cell cannot be changed here.");
}

TEST_F(WellTablesTest, aRefusedPasteNamesTheCellAndTheReason) {
  open();
  const auto refusal = [this](const QString& text) {
    return refusalOf(wells(), 0, WellModel::X, text);
  };
  EXPECT_EQ(refusal("1\t2\n3\tabc"), "Row 2, column 'Y coordinate': 'abc' is no number.");
  EXPECT_EQ(refusal("1\t2\n3"), "Row 2, column 'Y coordinate': a number is missing.");
  EXPECT_EQ(refusal("1.234,5"), "Row 1, column 'X coordinate': '1.234,5' has separators of "
                                "thousands. Copy it without them.");
  EXPECT_EQ(refusal("1,5\t2.5"), "Row 1, column 'Y coordinate': '2.5' has another decimal mark "
                                 "than the cells before it.");
  EXPECT_EQ(refusal("1\t2\t3001.5"), "Row 1, column 'Mean annual rate': '3001.5' is not between "
                                     "-3001 and 3001 l/min.");
  EXPECT_EQ(refusal("1\t2\t5\t-100"), "Row 1, column 'Temperature change': '-100' is not between "
                                      "-99 and 99 K.");
  EXPECT_EQ(refusal("1\t2\t-5\t3"), "Row 1, column 'Temperature change': a withdrawal well has no "
                                    "temperature change. Leave the cell empty.");
  EXPECT_EQ(refusal("1\t2\t3\t4\t5"),
            "The block has 5 columns, but from the chosen cell on there are 4.");
  EXPECT_EQ(refusal("1\n2\n3\n"), "The block needs 3 wells. Set the well count to it first.");
  EXPECT_EQ(refusal(""), "There is no text to paste.");
  EXPECT_EQ(refusalOf(wells(), 1, WellModel::X, "1\n2"),
            "The block needs 3 wells. Set the well count to it first.");
  EXPECT_EQ(refusalOf(wells(), 0, WellModel::Name, "\t1"),
            "Row 1, column 'Well': the name is empty.");
}

TEST_F(WellTablesTest, aNegativeDurationAndTooManyPeriodsAreRefused) {
  openWithPeriods(2);
  press(wells(), 0, WellModel::Name);
  EXPECT_EQ(refusalOf(periods(), 0, WellDemandModel::Duration, "-1"),
            "Row 1, column 'Duration': '-1' is below 0 h.");
  EXPECT_EQ(refusalOf(periods(), 1, WellDemandModel::Duration, "1\n2"),
            "The block needs 3 demand steps. Set their number to it first.");
}

TEST_F(WellTablesTest, hiddenColumnsTakeNoPart) {
  openWithPeriods(2);
  press(wells(), 0, WellModel::X);
  EXPECT_EQ(refusalOf(wells(), 0, WellModel::X, "1\t2\t3"),
            "The block has 3 columns, but from the chosen cell on there are 2.");
  press(wells(), 1, WellModel::Name);
  wells().selectRow(1);
  EXPECT_EQ(copied(wells()), "Well 2\t0\t0");
}

TEST_F(WellTablesTest, aTemperatureChangeFollowsTheSignThatIsPastedBesideIt) {
  open();
  paste(wells(), 0, WellModel::Rate, "6\t2\n-6\t0");
  EXPECT_EQ(feedback(), "");
  EXPECT_EQ(store.wells().temperatureChange(0), 2);
  EXPECT_EQ(store.wells().temperatureChange(1), 0);
}

TEST_F(WellTablesTest, fortyWellsArePastedAtOnce) {
  store.setValue(NumberOfWells, 40);
  open();
  QString text;
  for (int i = 0; i < 40; ++i)
    text += QString("W%1\t%2,5\t%3\t%4\t%5\r\n")
                .arg(i + 1)
                .arg(i)
                .arg(100 + i)
                .arg(i < 20 ? -10 : 10)
                .arg(i < 20 ? "" : "-3");
  paste(wells(), 0, WellModel::Name, text);
  EXPECT_EQ(feedback(), "");
  EXPECT_EQ(store.wells().name(39), "W40");
  EXPECT_EQ(store.wellPositions().at(39), QPointF(39.5, 139));
  EXPECT_EQ(store.wells().rate(19), -10 / 60.0 / 1000.0);
  EXPECT_EQ(store.wells().temperatureChange(20), -3);
}

} // namespace
} // namespace TVR::GUI
