#include "propertybrowser/PropertyTree.h"
#include "propertybrowser/QtDoubleSpinBoxFactory.h"
#include "propertybrowser/QtLineEditFactory.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>

namespace {

using PropertyEditing = PropertyTree;

/// Lines for doubles of the format "g", spin boxes for all others.
class ShortNumbers : public QtDoubleSpinBoxFactory {
public:
  QWidget* createEditor(QtProperty* property, QWidget* parent) override {
    const QVariant format = property->propertyManager()->attributeValue(property, "format");
    return format.toString().startsWith('g')
               ? lines_.createEditor(property, parent)
               : QtDoubleSpinBoxFactory::createEditor(property, parent);
  }

private:
  QtLineEditFactory lines_;
};

TEST_F(PropertyEditing, arrowsGoFromRowToRowByWayOfThoseThatCannotBeEdited) {
  unconfined->setEnabled(false);
  goTo(thickness);
  hit(Qt::Key_Down);
  EXPECT_EQ(browser.currentItem(), itemOf(unconfined));
  hit(Qt::Key_Down);
  EXPECT_EQ(browser.currentItem(), itemOf(conductivity));
  hit(Qt::Key_Up);
  EXPECT_EQ(browser.currentItem(), itemOf(unconfined));
}

TEST_F(PropertyEditing, typingReplacesTheValueAndEnterTakesIt) {
  goTo(thickness);
  type("25");
  EXPECT_EQ(thickness->value(), QVariant(12.3456)); // not before it is complete
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(25.0));
  EXPECT_TRUE(thickness->isModified());
}

TEST_F(PropertyEditing, f2AndEnterOpenTheEditor) {
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
    goTo(cells);
    hit(key);
    ASSERT_NE(editor<QSpinBox>(), nullptr);
    EXPECT_EQ(focused(), editor<QSpinBox>());
    hit(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(editor<QSpinBox>(), nullptr);
  }
}

TEST_F(PropertyEditing, editorHasLimitsStepAndTextOfTheAttributes) {
  browser.editItem(itemOf(thickness));
  const auto* const box = editor<QDoubleSpinBox>();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->minimum(), 1.0);
  EXPECT_EQ(box->maximum(), 1000.0);
  EXPECT_EQ(box->singleStep(), 1.0);
  EXPECT_EQ(box->decimals(), 2);
  EXPECT_EQ(box->suffix(), " m");
}

TEST_F(PropertyEditing, limitsAreThoseOfTheTypeWithoutAttributes) {
  manager.setAttribute(cells, "minimum", QVariant());
  manager.setAttribute(cells, "maximum", QVariant());
  browser.editItem(itemOf(cells));
  EXPECT_EQ(editor<QSpinBox>()->minimum(), std::numeric_limits<int>::lowest());
  EXPECT_EQ(editor<QSpinBox>()->maximum(), std::numeric_limits<int>::max());
}

TEST_F(PropertyEditing, numbersAreTypedWithAPointInEveryLanguage) {
  browser.setLocale(QLocale(QLocale::German, QLocale::Germany));
  goTo(thickness);
  type("1.5");
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(1.5));
}

TEST_F(PropertyEditing, tabTakesTheValueAndOpensTheNextThatCanBeEdited) {
  conductivity->setEnabled(false);
  goTo(unconfined);
  hit(Qt::Key_F2);
  hit(Qt::Key_Tab);
  EXPECT_EQ(browser.currentItem(), itemOf(cells));
  type("7");
  hit(Qt::Key_Tab);
  EXPECT_EQ(cells->value(), QVariant(7));
  EXPECT_EQ(browser.currentItem(), itemOf(place));
  type("Ulm");
  hit(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(place->value(), QVariant("Ulm"));
  EXPECT_EQ(browser.currentItem(), itemOf(cells));
}

TEST_F(PropertyEditing, tabBehindTheLastValueLeavesNoEditorOpen) {
  goTo(place);
  type("Ulm");
  hit(Qt::Key_Tab);
  EXPECT_EQ(place->value(), QVariant("Ulm"));
  EXPECT_EQ(focused(), browser.view());
}

TEST_F(PropertyEditing, escapeLeavesTheValue) {
  goTo(thickness);
  type("25");
  hit(Qt::Key_Escape);
  EXPECT_EQ(thickness->value(), QVariant(12.3456));
  EXPECT_FALSE(thickness->isModified());
  EXPECT_EQ(focused(), browser.view());
}

TEST_F(PropertyEditing, stepsCountAtOnceAndEscapeTakesThemBack) {
  goTo(cells);
  hit(Qt::Key_F2);
  hit(Qt::Key_Up);
  EXPECT_EQ(cells->value(), QVariant(401));
  EXPECT_TRUE(cells->isModified());
  hit(Qt::Key_Escape);
  EXPECT_EQ(cells->value(), QVariant(400));
  EXPECT_FALSE(cells->isModified());
}

TEST_F(PropertyEditing, editorThatNobodyChangedChangesNothing) {
  QSignalSpy told(&manager, &QtVariantPropertyManager::valueChanged);
  goTo(thickness); // of which the box shows two decimals
  hit(Qt::Key_F2);
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(12.3456));
  EXPECT_EQ(told.count(), 0);
}

TEST_F(PropertyEditing, valueOutsideTheLimitsSurvivesItsEditor) {
  thickness->setValue(2000.0);
  goTo(thickness);
  hit(Qt::Key_F2);
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(2000.0));
}

TEST_F(PropertyEditing, whatChangesBesidesLeavesHalfANumberAlone) {
  goTo(thickness);
  type("2");
  thickness->setNote("→ 10 m", "becomes 10 m");
  type("5");
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(25.0));
}

TEST_F(PropertyEditing, valueSetElsewhereAppearsInTheOpenEditor) {
  browser.editItem(itemOf(cells));
  cells->setValue(77);
  EXPECT_EQ(editor<QSpinBox>()->value(), 77);
}

TEST_F(PropertyEditing, disablingClosesTheEditorWithoutTakingItsValue) {
  goTo(cells);
  type("9");
  cells->setEnabled(false);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(editor<QSpinBox>(), nullptr);
  EXPECT_EQ(cells->value(), QVariant(400));
}

TEST_F(PropertyEditing, propertyThatCannotBeEditedOpensNoEditor) {
  thickness->setEnabled(false);
  unconfined->setEnabled(false);
  goTo(thickness);
  hit(Qt::Key_F2);
  type("5");
  EXPECT_EQ(editor<QWidget>(), nullptr);
  goTo(unconfined);
  hit(Qt::Key_Space);
  EXPECT_EQ(unconfined->value(), QVariant(false));
}

TEST_F(PropertyEditing, spaceAndClickOnTheBoxSetATruth) {
  goTo(unconfined);
  hit(Qt::Key_Space);
  EXPECT_EQ(unconfined->value(), QVariant(true));
  QTest::mouseClick(browser.view()->viewport(), Qt::LeftButton, {},
                    browser.view()->visualRect(cell(unconfined)).topLeft() + QPoint(8, 8));
  EXPECT_EQ(unconfined->value(), QVariant(false));
}

TEST_F(PropertyEditing, checkBoxOnTheWayOfTabSetsATruth) {
  goTo(thickness);
  hit(Qt::Key_F2);
  hit(Qt::Key_Tab);
  ASSERT_NE(qobject_cast<QCheckBox*>(focused()), nullptr);
  hit(Qt::Key_Space);
  EXPECT_EQ(unconfined->value(), QVariant(true));
}

TEST_F(PropertyEditing, doubleClickOnTheNameOpensTheEditor) {
  const QPoint name = browser.view()->visualRect(cell(cells, 0)).center();
  QTest::mouseClick(browser.view()->viewport(), Qt::LeftButton, {}, name);
  QTest::mouseDClick(browser.view()->viewport(), Qt::LeftButton, {}, name);
  EXPECT_NE(editor<QSpinBox>(), nullptr);
}

TEST_F(PropertyEditing, wheelOverAnOpenEditorMovesTheTreeAndNotTheValue) {
  for (int i = 0; i < 40; ++i)
    aquifer->addSubProperty(manager.addProperty(QMetaType::Int, QString::number(i)));
  QCoreApplication::processEvents();
  browser.editItem(itemOf(cells));
  auto* const box = editor<QSpinBox>();
  auto* const bar = browser.view()->verticalScrollBar();
  ASSERT_EQ(bar->value(), 0);
  ASSERT_GT(bar->maximum(), 0);
  const QPoint middle = box->rect().center();
  QWheelEvent turn(middle, box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&turn); // else it would not go on to what lies around the box
  qApp->notify(box, &turn);
  EXPECT_EQ(box->value(), 400);
  EXPECT_GT(bar->value(), 0);
}

TEST_F(PropertyEditing, factoryOfTheTypeDecidesWhichEditorComes) {
  ShortNumbers shortNumbers;
  factory.setFactoryForType(QMetaType::Double, &shortNumbers);
  goTo(conductivity);
  hit(Qt::Key_F2);
  ASSERT_NE(qobject_cast<QLineEdit*>(focused()), nullptr);
  hit(Qt::Key_Escape);
  type("1e-05");
  hit(Qt::Key_Return);
  EXPECT_EQ(conductivity->value(), QVariant(1e-5));
  goTo(thickness);
  hit(Qt::Key_F2);
  EXPECT_NE(qobject_cast<QDoubleSpinBox*>(focused()), nullptr);
}

TEST_F(PropertyEditing, lineShowsAllFiguresOfANumber) {
  ShortNumbers shortNumbers;
  factory.setFactoryForType(QMetaType::Double, &shortNumbers);
  conductivity->setValue(0.00123456789);
  browser.editItem(itemOf(conductivity));
  EXPECT_EQ(editor<QLineEdit>()->text(), "0.00123456789");
}

TEST_F(PropertyEditing, lineForANumberKeepsWhatIsNone) {
  ShortNumbers shortNumbers;
  factory.setFactoryForType(QMetaType::Double, &shortNumbers);
  goTo(conductivity);
  type("1e");
  hit(Qt::Key_Return);
  EXPECT_NE(qobject_cast<QLineEdit*>(focused()), nullptr);
  browser.view()->setFocus();
  EXPECT_EQ(conductivity->value(), QVariant(0.001));
}

TEST_F(PropertyEditing, scaledNumberIsTypedAsItIsShown) {
  manager.setAttribute(thickness, "scale", 100.0);
  manager.setAttribute(thickness, "prefix", " cm");
  EXPECT_EQ(thickness->valueText(), "1234.56 cm");
  goTo(thickness);
  hit(Qt::Key_F2);
  EXPECT_EQ(editor<QDoubleSpinBox>()->text(), "1234.56 cm");
  EXPECT_EQ(editor<QDoubleSpinBox>()->maximum(), 100000.0);
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(12.3456)); // not changed by way of the scale
  type("250");
  hit(Qt::Key_Return);
  EXPECT_EQ(thickness->value(), QVariant(2.5));
}

TEST_F(PropertyEditing, withoutAFactoryNothingIsEdited) {
  browser.setFactoryForManager(&manager, nullptr);
  goTo(thickness);
  hit(Qt::Key_F2);
  EXPECT_EQ(editor<QWidget>(), nullptr);
}

} // namespace
