#include "propertybrowser/PropertyTree.h"

#include <QAccessible>
#include <QFont>

namespace {

/// What a row looks like, and what a screen reader says of it.
struct PropertyReading : PropertyTree {
  QAccessibleInterface* accessible(const QtProperty* property, int column) {
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(browser.view());
    const QModelIndex index = cell(property, column);
    return tree->tableInterface()->cellAt(index.row() + 1, column); // the group is the row above
  }
  QFont font(const QtProperty* property) const {
    return cell(property).data(Qt::FontRole).value<QFont>();
  }
  /// The cell as it is painted.
  QImage painted(const QtProperty* property) {
    return browser.view()->viewport()->grab(browser.view()->visualRect(cell(property))).toImage();
  }
};

TEST_F(PropertyReading, screenReaderSaysNameValueAndUnit) {
  EXPECT_EQ(accessible(thickness, 0)->text(QAccessible::Name), "Thickness");
  EXPECT_EQ(accessible(thickness, 1)->text(QAccessible::Name), "Thickness: 12.35 m");
  EXPECT_EQ(accessible(cells, 1)->text(QAccessible::Name), "Cells: 400");
  EXPECT_EQ(accessible(unconfined, 1)->text(QAccessible::Name), "Unconfined: False");
}

TEST_F(PropertyReading, screenReaderSaysRemarkBadgeAndNote) {
  thickness->setRemark("No water.");
  thickness->setBadge("<", "The selected value depends on this.");
  thickness->setNote("→ 10 m", "becomes 10 m");
  EXPECT_EQ(accessible(thickness, 1)->text(QAccessible::Description),
            "No water. The selected value depends on this. becomes 10 m");
}

TEST_F(PropertyReading, editorHasNameUnitAndRemarkOfItsValue) {
  thickness->setRemark("No water.");
  browser.editItem(itemOf(thickness));
  QAccessibleInterface* const box = QAccessible::queryAccessibleInterface(focused());
  EXPECT_EQ(box->text(QAccessible::Name), "Thickness [m]");
  EXPECT_EQ(box->text(QAccessible::Description), "No water.");
  EXPECT_EQ(box->text(QAccessible::Value), "12.35");
}

TEST_F(PropertyReading, toolTipTellsRemarkBeforeWhatIsAlwaysTold) {
  thickness->setToolTip("From top to bottom.");
  EXPECT_EQ(cell(thickness).data(Qt::ToolTipRole).toString(), "From top to bottom.");
  thickness->setRemark("0 < 1");
  EXPECT_EQ(cell(thickness, 0).data(Qt::ToolTipRole).toString(), "0 &lt; 1<br>From top to bottom.");
}

TEST_F(PropertyReading, toolTipsAreAskedForBehindWhatThePropertySays) {
  thickness->setToolTip("From top to bottom.");
  browser.setToolTips([](const QtProperty& property) { return property.propertyName() + "!"; });
  EXPECT_EQ(cell(thickness).data(Qt::ToolTipRole).toString(), "From top to bottom.<br>Thickness!");
  EXPECT_EQ(cell(cells).data(Qt::ToolTipRole).toString(), "Cells!");
}

TEST_F(PropertyReading, modifiedIsBoldAndItalicIsTheMakers) {
  EXPECT_FALSE(font(thickness).bold());
  EXPECT_FALSE(font(thickness).italic());
  thickness->setValue(5.0);
  thickness->setItalic(true);
  EXPECT_TRUE(font(thickness).bold());
  EXPECT_TRUE(font(thickness).italic());
}

TEST_F(PropertyReading, badgeStandsBeforeTheName) {
  thickness->setBadge("<", "source");
  EXPECT_EQ(cell(thickness, 0).data().toString(), "< Thickness");
}

TEST_F(PropertyReading, backgroundFillsTheRow) {
  EXPECT_FALSE(cell(thickness).data(Qt::BackgroundRole).isValid());
  thickness->setBackground(Qt::green);
  const QImage image = painted(thickness);
  EXPECT_EQ(image.pixelColor(image.width() - 2, image.height() / 2), QColor(Qt::green));
}

TEST_F(PropertyReading, remarkIsShownInPlace) {
  const QImage before = painted(thickness);
  thickness->setRemark("It is too thin.");
  const QImage marked = painted(thickness);
  EXPECT_NE(before, marked);
  thickness->setRemark("");
  EXPECT_EQ(before, painted(thickness));
}

TEST_F(PropertyReading, toolTipTellsTheNoteInFull) {
  thickness->setNote("→ 10 m", "becomes 10 m");
  EXPECT_EQ(cell(thickness).data(Qt::ToolTipRole).toString(), "becomes 10 m");
}

TEST_F(PropertyReading, noteIsShownBehindTheValue) {
  const QImage before = painted(thickness);
  thickness->setNote("→ 10 m", "becomes 10 m");
  EXPECT_NE(before, painted(thickness));
}

} // namespace
