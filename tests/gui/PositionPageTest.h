#pragma once

#include "gui/PageTest.h"
#include "gui/positions/PositionPages.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

#include <memory>

namespace TVR::GUI {

/// The page of the wells in a wizard, over two wells at 6 l/min that stand on the origin.
class PositionPageTest : public PageTest {
protected:
  PositionPageTest() {
    store.setValue(Parameter::NumberOfWells, 2);
    store.setValue(Parameter::UsedTemperatureChange, 3.0);
    store.setValue(Parameter::MeanFlowRate, flow);
    store.setValue(Parameter::DefaultWellPosition, QPointF());
  }

  /// Enters the page as a wizard does.
  void open() {
    wizard = std::make_unique<InputWizard>();
    page = positionPages({store}, wizard.get()).first();
    redrawn = std::make_unique<QSignalSpy>(page, SIGNAL(updateGraphics()));
    wizard->addPage(new QWizardPage);
    wizard->addPage(page);
    wizard->resize(400, 620);
    wizard->show();
    wizard->next();
    QApplication::setActiveWindow(wizard.get());
  }
  /// Opens the page on so many periods of equal length.
  void openWithPeriods(int count) {
    store.setValue(Parameter::NumberOfDemandsPerYear, count);
    store.resizePeriods(count);
    open();
  }

  template <class Widget>
  Widget& get(const char* name) const {
    auto* const widget = page->findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  QString textOf(const char* name) const { return get<QLabel>(name).text(); }
  QString feedback() const { return textOf("feedback_page1"); }
  void click(const char* name) const {
    QTest::mouseClick(&get<QAbstractButton>(name), Qt::LeftButton);
  }
  bool isShown(const char* name) const { return get<QWidget>(name).isVisible(); }
  QTableView& wells() const { return get<QTableView>("tableOfWellPositions"); }
  QTableView& periods() const { return get<QTableView>("extendTableView"); }
  static void press(QTableView& table, int row, int column) {
    const QModelIndex index = table.model()->index(row, column);
    table.scrollTo(index);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(index).center());
  }
  /// Where the keys go: to the editor of a cell, else to the table.
  static QWidget& keysOf(QTableView& table) {
    QWidget* const editor = table.indexWidget(table.currentIndex());
    return editor ? *editor : table;
  }
  /// Types over what is in the current cell.
  static void type(QTableView& table, const QString& text) {
    QTest::keyClicks(&keysOf(table), text);
  }
  static void key(QTableView& table, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&keysOf(table), key, modifiers);
    QCoreApplication::processEvents(); // Enter takes what was typed a moment later
  }
  static QPoint cell(const QTableView& table) {
    return {table.currentIndex().row(), table.currentIndex().column()};
  }
  void setRate(int well, double rate) {
    store.setCells(ProjectTable::Well, {{well, WellColumns::Rate, rate}});
  }
  /// Moves a well as the map does, whose points are those of the store.
  void drag(int well, const QPointF& place) {
    const_cast<QVector<QPointF>&>(store.wellPositions())[well] = place;
    QMetaObject::invokeMethod(page, "update");
  }
  bool validates() const { return wizard->validateCurrentPage(); }

  static constexpr double flow = 0.0001;
  std::unique_ptr<InputWizard> wizard;
  QWizardPage* page = nullptr;
  std::unique_ptr<QSignalSpy> redrawn; ///< how often the map was asked to draw the wells
};

} // namespace TVR::GUI
