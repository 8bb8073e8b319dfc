#include "page/PageSamples.h"
#include "page/document/PageDocument.h"

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

/// Notes what each notification is about.
class Listener : public DATA::DataObserver {
public:
  explicit Listener(Canvas& canvas) : canvas_(canvas) {}
  void update(DATA::DataObject* object) override {
    heard.emplace_back(canvas_.lastChangedItem(), canvas_.lastChangedProperty());
    objects.push_back(object);
    if (reaction)
      reaction();
  }
  std::vector<std::pair<int, int>> heard;
  std::vector<DATA::DataObject*> objects;
  std::function<void()> reaction;

private:
  Canvas& canvas_;
};

/// An observer that is a QObject, as the plug-in is.
class ObjectListener : public QObject, public Listener {
public:
  using Listener::Listener;
};

class CanvasObserver : public testing::Test {
protected:
  CanvasObserver() {
    readPage(canvas, Samples::smallPage());
    canvas.attachObserver(Samples::map, &listener);
  }

  using Heard = std::vector<std::pair<int, int>>;
  Canvas canvas;
  Listener listener{canvas};
};

TEST_F(CanvasObserver, hearsWhichPropertyOfWhichItemChanged) {
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(listener.heard, Heard({{Samples::map, XMaximum}}));
  EXPECT_EQ(listener.objects.front(), canvas.item(Samples::map));
}

TEST_F(CanvasObserver, hearsNothingOfOtherItems) {
  canvas.setProperty(Samples::summary, Html, "text");
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(CanvasObserver, hearsNothingOfAValueThatStays) {
  canvas.setProperty(Samples::map, XMaximum, 500);
  canvas.setProperty(Samples::map, XMaximum, 500.0);
  EXPECT_EQ(listener.heard.size(), 1U);
}

TEST_F(CanvasObserver, hearsNothingOfAValueThatIsRefused) {
  canvas.setProperty(Samples::map, XMaximum, "wide");
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(CanvasObserver, hearsInsideOfAnUpdateBracketAtOnce) {
  canvas.beginUpdate();
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(listener.heard.size(), 1U);
  canvas.endUpdate();
}

TEST_F(CanvasObserver, hearsNothingWhileNotificationsAreOff) {
  canvas.setNotificationsEnabled(false);
  canvas.setProperty(Samples::map, XMaximum, 500);
  canvas.setNotificationsEnabled(true);
  canvas.setProperty(Samples::map, YMaximum, 500);
  EXPECT_EQ(listener.heard, Heard({{Samples::map, YMaximum}}));
}

TEST_F(CanvasObserver, hearsOnceThoughAttachedTwice) {
  canvas.attachObserver(Samples::map, &listener);
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(listener.heard.size(), 1U);
}

TEST_F(CanvasObserver, hearsNothingAfterItWasDetached) {
  canvas.detachObserver(Samples::map, &listener);
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(CanvasObserver, hearsOfTheGrowthOfAnAutomaticAxis) {
  canvas.setProperty(Samples::map, XAutoScale, true);
  listener.heard.clear();
  canvas.addCurve(Samples::map, Samples::line({{77, 0.5}}), true);
  EXPECT_EQ(listener.heard, Heard({{Samples::map, XMaximum}}));
}

TEST_F(CanvasObserver, hearsOfAPointThatTheUserMoves) {
  const int curve = canvas.addCurve(Samples::map, Samples::line({{0, 0}, {1, 1}}), true);
  canvas.attachObserver(curve, &listener);
  canvas.movePoint(curve, 1, {5, 6});
  EXPECT_EQ(listener.heard, Heard({{curve, PointMoved}}));
  EXPECT_EQ(canvas.property(curve, Points).value<QPolygonF>(), Samples::line({{0, 0}, {5, 6}}));
}

TEST_F(CanvasObserver, hearsNothingOfAPointThatIsNotThere) {
  const int curve = canvas.addCurve(Samples::map, Samples::line({{0, 0}}), true);
  canvas.attachObserver(curve, &listener);
  canvas.movePoint(curve, 1, {5, 6});
  canvas.movePoint(curve, -1, {5, 6});
  canvas.movePoint(curve, 0, {std::nan(""), 6});
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(CanvasObserver, outsideOfANotificationNothingIsInProgress) {
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(canvas.lastChangedItem(), 0);
  EXPECT_EQ(canvas.lastChangedProperty(), 0);
}

TEST_F(CanvasObserver, aNestedNotificationGivesBackWhatWasInProgress) {
  Listener other(canvas);
  canvas.attachObserver(Samples::summary, &other);
  std::pair<int, int> afterwards;
  listener.reaction = [&] {
    canvas.setProperty(Samples::summary, Html, "scale");
    afterwards = {canvas.lastChangedItem(), canvas.lastChangedProperty()};
  };
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(other.heard, Heard({{Samples::summary, Html}}));
  EXPECT_EQ(afterwards, std::pair(Samples::map, static_cast<int>(XMaximum)));
}

TEST_F(CanvasObserver, mayDetachItselfWhileItIsTold) {
  Listener second(canvas);
  canvas.attachObserver(Samples::map, &second);
  listener.reaction = [&] { canvas.detachObserver(Samples::map, &listener); };
  canvas.setProperty(Samples::map, XMaximum, 500);
  canvas.setProperty(Samples::map, XMaximum, 600);
  EXPECT_EQ(listener.heard.size(), 1U);
  EXPECT_EQ(second.heard.size(), 2U);
}

TEST_F(CanvasObserver, isNotToldIfAnotherDetachesItFirst) {
  Listener second(canvas);
  canvas.attachObserver(Samples::map, &second);
  listener.reaction = [&] { canvas.detachObserver(Samples::map, &second); };
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_TRUE(second.heard.empty());
}

TEST_F(CanvasObserver, mayRemoveTheItemThatItIsToldOf) {
  Listener second(canvas);
  canvas.attachObserver(Samples::map, &second);
  listener.reaction = [&] { canvas.removeItem(Samples::map); };
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(canvas.item(Samples::map), nullptr);
  EXPECT_TRUE(second.heard.empty());
}

TEST_F(CanvasObserver, livesOnWhenItsItemGoes) {
  auto* observer = new ObjectListener(canvas);
  const QPointer<QObject> watched = observer;
  canvas.attachObserver(Samples::summary, observer);
  canvas.removeItem(Samples::summary);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_FALSE(watched.isNull());
  delete observer;
}

TEST_F(CanvasObserver, ofAnItemThatWentHearsNothingOfItsSuccessor) {
  readPage(canvas, Samples::smallPage());
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(CanvasObserver, thatIsAnObjectMayBeDestroyedWhileAttached) {
  auto observer = std::make_unique<ObjectListener>(canvas);
  canvas.attachObserver(Samples::map, observer.get());
  observer.reset();
  canvas.setProperty(Samples::map, XMaximum, 500);
  EXPECT_EQ(listener.heard.size(), 1U);
}

TEST_F(CanvasObserver, mayRemoveThePlotWhoseAxesGrow) {
  canvas.setProperty(Samples::map, XAutoScale, true);
  canvas.setProperty(Samples::map, YAutoScale, true);
  listener.reaction = [this] { canvas.removeItem(Samples::map); };
  const int curve =
      canvas.addCurve(Samples::map, QPolygonF(QVector<QPointF>{{-1e6, -1e6}, {1e6, 1e6}}), true);
  EXPECT_GT(curve, 0);
  EXPECT_EQ(canvas.item(Samples::map), nullptr);
  EXPECT_EQ(canvas.item(curve), nullptr);
}

} // namespace
