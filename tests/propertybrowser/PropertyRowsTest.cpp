#include "propertybrowser/PropertyTree.h"
#include "support/ContextTranslator.h"

#include <QAbstractItemModelTester>

namespace {

using PropertyRows = PropertyTree;

TEST_F(PropertyRows, modelKeepsTheRulesOfModels) {
  const QAbstractItemModelTester tester(browser.view()->model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  QtProperty* const late = manager.addProperty(QMetaType::Int, "Late");
  aquifer->addSubProperty(late);
  late->setValue(3);
  aquifer->removeSubProperty(thickness);
  manager.removeProperty(late);
  browser.addProperty(cells);
  browser.clear();
  EXPECT_EQ(browser.view()->model()->rowCount(), 0);
}

TEST_F(PropertyRows, rowsFollowTheOrderInWhichPropertiesWereAdded) {
  ASSERT_EQ(browser.topLevelItems(), QList<QtBrowserItem*>{top});
  EXPECT_EQ(top->property(), aquifer);
  EXPECT_EQ(top->parent(), nullptr);
  ASSERT_EQ(top->children().size(), 5);
  EXPECT_EQ(top->children().at(0)->property(), thickness);
  EXPECT_EQ(top->children().at(4)->property(), place);
  EXPECT_EQ(top->children().at(4)->parent(), top);
}

TEST_F(PropertyRows, propertyMayLieAtSeveralPlaces) {
  QtBrowserItem* const second = browser.addProperty(cells);
  EXPECT_EQ(browser.items(cells), (QList<QtBrowserItem*>{top->children().at(3), second}));
  browser.removeProperty(cells);
  EXPECT_EQ(browser.items(cells), QList<QtBrowserItem*>{top->children().at(3)});
}

TEST_F(PropertyRows, whatIsAddedBelowLaterIsShown) {
  QtProperty* const group = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "Inner");
  QtProperty* const inner = manager.addProperty(QMetaType::Int, "Inmost");
  group->addSubProperty(inner);
  aquifer->addSubProperty(group);
  ASSERT_EQ(browser.items(inner).size(), 1);
  EXPECT_TRUE(browser.isExpanded(itemOf(group)));
  EXPECT_TRUE(browser.view()->visualRect(cell(inner)).isValid());
}

TEST_F(PropertyRows, deletedPropertyLosesAllItsRows) {
  browser.addProperty(cells);
  manager.removeProperty(cells);
  EXPECT_TRUE(browser.items(cells).isEmpty());
  EXPECT_EQ(browser.topLevelItems().size(), 1);
  EXPECT_EQ(top->children().size(), 4);
}

TEST_F(PropertyRows, treeOutlivesTheManager) {
  {
    QtVariantPropertyManager passing;
    browser.addProperty(passing.addProperty(QMetaType::Int, "Passing"));
    EXPECT_EQ(browser.topLevelItems().size(), 2);
  }
  EXPECT_EQ(browser.topLevelItems().size(), 1);
}

TEST_F(PropertyRows, newRowsAreExpandedAndTellWhenTheyAreNot) {
  QSignalSpy collapsed(&browser, &QtTreePropertyBrowser::collapsed);
  QSignalSpy expanded(&browser, &QtTreePropertyBrowser::expanded);
  EXPECT_TRUE(browser.isExpanded(top));
  browser.setExpanded(top, false);
  EXPECT_FALSE(browser.isExpanded(top));
  ASSERT_EQ(collapsed.count(), 1);
  EXPECT_EQ(collapsed.first().first().value<QtBrowserItem*>(), top);
  browser.setExpanded(top, true);
  EXPECT_EQ(expanded.count(), 1);
}

TEST_F(PropertyRows, rowCanBeExpandedAgainWhileItTellsThatItCollapsed) {
  QObject::connect(&browser, &QtTreePropertyBrowser::collapsed, &browser,
                   [this](QtBrowserItem* item) { browser.setExpanded(item, true); });
  goTo(thickness);
  hit(Qt::Key_Left); // to the group
  hit(Qt::Key_Left);
  EXPECT_TRUE(browser.isExpanded(top));
  EXPECT_TRUE(browser.view()->visualRect(cell(thickness)).isValid());
}

TEST_F(PropertyRows, invisibleItemAndInvisiblePropertyAreHidden) {
  browser.setItemVisible(itemOf(thickness), false);
  EXPECT_FALSE(browser.isItemVisible(itemOf(thickness)));
  EXPECT_TRUE(browser.view()->isRowHidden(0, cell(thickness).parent()));
  browser.setItemVisible(itemOf(thickness), true);
  EXPECT_FALSE(browser.view()->isRowHidden(0, cell(thickness).parent()));
  thickness->setVisible(false);
  EXPECT_FALSE(browser.isItemVisible(itemOf(thickness)));
  EXPECT_TRUE(browser.view()->isRowHidden(0, cell(thickness).parent()));
}

TEST_F(PropertyRows, filterLeavesWhatPassesAndWhatThatLiesIn) {
  browser.setFilter([](const QtProperty& property) { return property.propertyName() == "Cells"; });
  EXPECT_TRUE(browser.isItemVisible(top));
  EXPECT_TRUE(browser.isItemVisible(itemOf(cells)));
  EXPECT_FALSE(browser.isItemVisible(itemOf(thickness)));
  browser.setFilter({});
  EXPECT_TRUE(browser.isItemVisible(itemOf(thickness)));
}

TEST_F(PropertyRows, filterFollowsWhatChanges) {
  browser.setFilter([](const QtProperty& property) { return property.isModified(); });
  EXPECT_TRUE(browser.view()->isRowHidden(0, {}));
  cells->setValue(500);
  EXPECT_FALSE(browser.view()->isRowHidden(0, {}));
  EXPECT_FALSE(browser.view()->isRowHidden(3, cell(cells).parent()));
}

TEST_F(PropertyRows, filterDoesNotShowWhatIsHidden) {
  browser.setItemVisible(itemOf(cells), false);
  browser.setFilter([](const QtProperty& property) { return property.propertyName() == "Cells"; });
  EXPECT_FALSE(browser.isItemVisible(itemOf(cells)));
  EXPECT_FALSE(browser.isItemVisible(top));
}

TEST_F(PropertyRows, currentRowIsTold) {
  QSignalSpy told(&browser, &QtTreePropertyBrowser::currentItemChanged);
  goTo(cells);
  ASSERT_EQ(told.count(), 1);
  EXPECT_EQ(told.first().first().value<QtBrowserItem*>(), itemOf(cells));
  EXPECT_EQ(browser.currentItem(), itemOf(cells));
}

TEST_F(PropertyRows, doubleClickOnAValueThatCannotBeEditedIsTold) {
  thickness->setEnabled(false);
  QSignalSpy told(browser.view(), &QTreeView::doubleClicked);
  QTest::mouseClick(browser.view()->viewport(), Qt::LeftButton, {}, spot(thickness));
  QTest::mouseDClick(browser.view()->viewport(), Qt::LeftButton, {}, spot(thickness));
  ASSERT_EQ(told.count(), 1);
  EXPECT_EQ(browser.itemFor(told.first().first().toModelIndex()), itemOf(thickness));
  EXPECT_EQ(editor<QWidget>(), nullptr);
}

TEST_F(PropertyRows, headerFollowsTheLanguage) {
  QAbstractItemModel* const model = browser.view()->model();
  EXPECT_EQ(model->headerData(0, Qt::Horizontal).toString(), "Parameter");
  EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "Value");
  int told = 0;
  QObject::connect(model, &QAbstractItemModel::headerDataChanged, &browser, [&told] { ++told; });
  const TVR::ContextTranslator language;
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&browser, &change);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "PropertyTreeModel/Value");
}

} // namespace
