#include "host/DataObserver.h"

#include <QCoreApplication>
#include <QObject>
#include <QPointer>

#include <gtest/gtest.h>

namespace {

class PlainObserver final : public DATA::DataObserver {
public:
  explicit PlainObserver(bool& isAlive) : isAlive_(isAlive) { isAlive_ = true; }
  ~PlainObserver() override { isAlive_ = false; }
  void update(DATA::DataObject*) override {}

private:
  bool& isAlive_;
};

class ObjectObserver final : public QObject, public DATA::DataObserver {
public:
  void update(DATA::DataObject*) override {}
};

} // namespace

TEST(DataObserver, observesNothingAtFirst) {
  ObjectObserver observer;
  EXPECT_EQ(observer.dataObject(), nullptr);
  DATA::DataObject object;
  observer.setDataObject(&object);
  EXPECT_EQ(observer.dataObject(), &object);
}

TEST(DataObserver, aPlainObserverGoesWithItsObjectAtOnce) {
  bool isAlive = false;
  DATA::DataObserver* const observer = new PlainObserver(isAlive);
  ASSERT_TRUE(isAlive);
  observer->dataObjectGoesAway();
  EXPECT_FALSE(isAlive);
}

TEST(DataObserver, anObserverThatIsAQObjectGoesLater) {
  const QPointer<ObjectObserver> observer = new ObjectObserver;
  observer->dataObjectGoesAway();
  ASSERT_TRUE(observer);
  QCoreApplication::sendPostedEvents(observer, QEvent::DeferredDelete);
  EXPECT_FALSE(observer);
}
