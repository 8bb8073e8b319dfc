#include "propertybrowser/QtVariantPropertyManager.h"
#include "support/ContextTranslator.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

struct PropertyManager : testing::Test {
  QtProperty* number(double value) {
    QtProperty* const property = manager.addProperty(QMetaType::Double, "number");
    property->setValue(value);
    return property;
  }

  QtVariantPropertyManager manager;
};

TEST_F(PropertyManager, newPropertyIsEnabledVisibleUnmodifiedAndEmpty) {
  const QtProperty* const property = manager.addProperty(QMetaType::Int, "Wells");
  EXPECT_EQ(property->propertyName(), "Wells");
  EXPECT_TRUE(property->isEnabled());
  EXPECT_TRUE(property->isVisible());
  EXPECT_FALSE(property->isModified());
  EXPECT_EQ(property->value(), QVariant(0));
  EXPECT_FALSE(property->data().isValid());
}

TEST_F(PropertyManager, propertyKeepsTheDataOfItsMaker) {
  QtProperty* const property = number(1.0);
  property->setData(59);
  EXPECT_EQ(property->data().toInt(), 59);
}

TEST_F(PropertyManager, anotherValueMarksAsModifiedAndIsTold) {
  QtProperty* const property = number(1.0);
  property->setModified(false);
  QSignalSpy told(&manager, &QtVariantPropertyManager::valueChanged);
  property->setValue(2.0);
  EXPECT_TRUE(property->isModified());
  ASSERT_EQ(told.count(), 1);
  EXPECT_EQ(told.first().at(0).value<QtProperty*>(), property);
  EXPECT_EQ(told.first().at(1).value<QVariant>(), QVariant(2.0));
}

TEST_F(PropertyManager, sameValueNeitherMarksNorTells) {
  QtProperty* const property = number(1.0);
  property->setModified(false);
  QSignalSpy told(&manager, &QtVariantPropertyManager::valueChanged);
  property->setValue(1.0);
  EXPECT_FALSE(property->isModified());
  EXPECT_EQ(told.count(), 0);
}

TEST_F(PropertyManager, textOfAFileBecomesAValueOfTheType) {
  QtProperty* const property = number(1.0);
  property->setValue("1e-05");
  EXPECT_EQ(property->value(), QVariant(1e-5));
}

TEST_F(PropertyManager, whatIsNoValueOfTheTypeIsIgnored) {
  QtProperty* const property = number(3.0);
  property->setModified(false);
  property->setValue("three");
  EXPECT_EQ(property->value(), QVariant(3.0));
  EXPECT_FALSE(property->isModified());
}

TEST_F(PropertyManager, valueOutsideItsRangeIsShownAsItIs) {
  QtProperty* const property = number(1.0);
  manager.setAttribute(property, "maximum", 10.0);
  property->setValue(20.0);
  EXPECT_EQ(property->value(), QVariant(20.0));
}

TEST_F(PropertyManager, numberHasTheDecimalsAndTheTextBehindIt) {
  QtProperty* const property = number(12.3456);
  EXPECT_EQ(property->valueText(), "12.35");
  manager.setAttribute(property, "decimals", 1);
  manager.setAttribute(property, "prefix", " m bgl");
  EXPECT_EQ(property->valueText(), "12.3 m bgl");
}

TEST_F(PropertyManager, formatGIsAsShortAsItCan) {
  QtProperty* const property = number(1e-5);
  manager.setAttribute(property, "decimals", 5);
  manager.setAttribute(property, "format", "g");
  EXPECT_EQ(property->valueText(), "1e-05");
  property->setValue(0.00123456789);
  EXPECT_EQ(property->valueText(), "0.00123457");
  manager.setAttribute(property, "format", "g3");
  EXPECT_EQ(property->valueText(), "0.00123");
}

TEST_F(PropertyManager, wholeNumberHasNoPoint) {
  QtProperty* const property = manager.addProperty(QMetaType::Int, "hours");
  manager.setAttribute(property, "prefix", " h");
  property->setValue(8766);
  EXPECT_EQ(property->valueText(), "8766 h");
}

TEST_F(PropertyManager, truthIsShownInTheLanguageOfTheMoment) {
  QtProperty* const property = manager.addProperty(QMetaType::Bool, "unconfined");
  EXPECT_EQ(property->valueText(), "False");
  property->setValue(true);
  EXPECT_EQ(property->valueText(), "True");
  const TVR::ContextTranslator language;
  EXPECT_EQ(property->valueText(), "QtVariantPropertyManager/True");
}

TEST_F(PropertyManager, groupHasNoValue) {
  QtProperty* const group = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "Group");
  group->setValue(1);
  EXPECT_TRUE(group->isGroup());
  EXPECT_FALSE(group->value().isValid());
  EXPECT_EQ(group->valueText(), "");
}

TEST_F(PropertyManager, everythingThatCanBeSeenIsToldOnceAndOnlyIfItChanges) {
  QtProperty* const property = number(1.0);
  QSignalSpy told(&manager, &QtVariantPropertyManager::propertyChanged);
  const auto changes = {
      +[](QtProperty* p) { p->setPropertyName("other"); },
      +[](QtProperty* p) { p->setToolTip("tip"); },
      +[](QtProperty* p) { p->setWhatsThis("what"); },
      +[](QtProperty* p) { p->setEnabled(false); },
      +[](QtProperty* p) { p->setVisible(false); },
      +[](QtProperty* p) { p->setModified(false); },
      +[](QtProperty* p) { p->setItalic(true); },
      +[](QtProperty* p) { p->setBackground(Qt::yellow); },
      +[](QtProperty* p) { p->setBadge("<", "source"); },
      +[](QtProperty* p) { p->setNote("was 3", "was 3 before"); },
      +[](QtProperty* p) { p->setRemark("too large"); },
  };
  int expected = 0;
  for (const auto change : changes) {
    change(property);
    EXPECT_EQ(told.count(), ++expected);
    change(property);
    EXPECT_EQ(told.count(), expected);
  }
}

TEST_F(PropertyManager, deletedPropertyLeavesItsGroup) {
  QtProperty* const group = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "Group");
  QtProperty* const property = number(1.0);
  group->addSubProperty(property);
  manager.removeProperty(property);
  EXPECT_TRUE(group->subProperties().isEmpty());
}

} // namespace
