#include "plugin/WholePlugin.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"
#include "tables/WellModel.h"

#include <QDoubleSpinBox>
#include <QMouseEvent>
#include <QTableView>
#include <QWizardPage>
#include <QtTest>

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// The map with two wells beside the wizard of the simulation, which is at the page of the wells.
class WellsOnMap : public WholePlugin {
protected:
  WellsOnMap() {
    setMessenger(&user);
    prepareDoublet();
    store.setValue(WellWizardDone, true);
    plugin->showSimulationWizard();
    window()->resize(1000, 720);
    window()->show();
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(wizard());
  }
  ~WellsOnMap() override {
    plugin->wizards().closeWizard();
    setMessenger(nullptr);
  }

  QWizard* wizard() { return plugin->wizards().wizard(); }
  QTableView& table() { return *wizard()->findChild<QTableView*>("tableOfWellPositions"); }
  QModelIndex cell(int well, int column) { return table().model()->index(well, column); }
  QPolygonF wellsOnPage() { return of(items().wells, Points).value<QPolygonF>(); }

  QPointF pixelOf(const QPointF& place) {
    const auto& map = *window()->canvas().item<Page::PlotItem>(items().mapView);
    return window()->view().toWindow(map.toPage(place));
  }
  void mouse(QEvent::Type type, const QPointF& pixel, Qt::MouseButtons held) {
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, pixel, pixel, pixel, isMove ? Qt::NoButton : Qt::LeftButton, held, {});
    QApplication::sendEvent(window(), &event);
  }
  void pull(const QPointF& from, const QPointF& to) {
    mouse(QEvent::MouseButtonPress, pixelOf(from), Qt::LeftButton);
    mouse(QEvent::MouseMove, pixelOf((from + to) / 2), Qt::LeftButton);
    mouse(QEvent::MouseMove, pixelOf(to), Qt::LeftButton);
  }
  void drag(const QPointF& from, const QPointF& to) {
    pull(from, to);
    mouse(QEvent::MouseButtonRelease, pixelOf(to), Qt::NoButton);
  }
  /// Opens the editor of a well's east coordinate.
  QDoubleSpinBox& edit(int well) {
    const QModelIndex east = cell(well, WellModel::X);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(east).center());
    return *qobject_cast<QDoubleSpinBox*>(table().indexWidget(east));
  }
  static void expectNear(const QPointF& place, const QPointF& expected) {
    EXPECT_NEAR(place.x(), expected.x(), 1e-6);
    EXPECT_NEAR(place.y(), expected.y(), 1e-6);
  }

  const QPointF before{681060, 226960};
  const QPointF after{681050, 226985};
  const SettingsOfTheTest settings;
  TestMessenger user;
};

} // namespace

TEST_F(WellsOnMap, aDraggedWellIsInStoreTableAndDistanceAtOnce) {
  drag(before, after);
  expectNear(store.wellPositions().at(1), after);
  expectNear({cell(1, WellModel::X).data().toDouble(), cell(1, WellModel::Y).data().toDouble()},
             after);
  EXPECT_NEAR(number(DMinUsed), std::hypot(50, 15), 1e-6);
  EXPECT_EQ(store.wellPositions().at(0), QPointF(681000, 227000));
}

TEST_F(WellsOnMap, anOpenEditorFollowsAWellWhileItIsPulled) {
  const QDoubleSpinBox& east = edit(1);
  ASSERT_EQ(east.value(), before.x());
  pull(before, after);
  EXPECT_NEAR(east.value(), after.x(), 0.01);
  mouse(QEvent::MouseButtonRelease, pixelOf(after), Qt::NoButton);
}

TEST_F(WellsOnMap, whatIsBeingTypedOutlivesADrag) {
  QDoubleSpinBox& east = edit(1);
  QTest::keyClick(&east, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&east, "681077");
  drag(before, after);
  EXPECT_EQ(east.value(), 681077);
  QTest::keyClick(&east, Qt::Key_Tab);
  expectNear(store.wellPositions().at(1), {681077, after.y()});
}

TEST_F(WellsOnMap, aDragThatIsGivenUpPutsTheWellBack) {
  pull(before, after);
  expectNear(store.wellPositions().at(1), after);
  QTest::keyClick(window(), Qt::Key_Escape);
  expectNear(store.wellPositions().at(1), before);
}

TEST_F(WellsOnMap, aWellIsFollowedBehindAnotherPageToo) {
  const QWizardPage* const positions = wizard()->currentPage();
  wizard()->next();
  ASSERT_NE(wizard()->currentPage(), positions);
  drag(before, after);
  expectNear(store.wellPositions().at(1), after);
  wizard()->back();
  EXPECT_NEAR(edit(1).value(), after.x(), 0.01);
}

TEST_F(WellsOnMap, aWellIsFollowedWithoutAWizard) {
  plugin->wizards().closeWizard();
  QApplication::setActiveWindow(window());
  window()->setCurrentItem(items().wells);
  drag(before, after);
  expectNear(store.wellPositions().at(1), after);
}

TEST_F(WellsOnMap, aCoordinateThatIsTypedMovesTheWellOnTheMap) {
  QDoubleSpinBox& east = edit(1);
  QTest::keyClick(&east, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&east, "681070");
  QTest::keyClick(&east, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(wellsOnPage().at(1), QPointF(681070, 226960));
}

TEST_F(WellsOnMap, wellsThatArePlacedByTheirButtonMoveOnTheMap) {
  store.setStored(DMin, 30.0);
  store.setStored(RadiusOfInfluence, 12.0);
  QTest::mouseClick(wizard()->findChild<QAbstractButton*>("placeWellsButton"), Qt::LeftButton);
  EXPECT_NE(wellsOnPage().at(1), before);
  EXPECT_EQ(wellsOnPage(), QPolygonF(store.wellPositions()));
}
