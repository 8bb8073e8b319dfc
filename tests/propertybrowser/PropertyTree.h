#pragma once

#include "propertybrowser/PropertyTreeModel.h"
#include "propertybrowser/QtTreePropertyBrowser.h"
#include "propertybrowser/QtVariantEditorFactory.h"
#include "propertybrowser/QtVariantPropertyManager.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

/// A tree with a group of one property of each type, in a window that has the keyboard.
class PropertyTree : public testing::Test {
protected:
  PropertyTree() {
    aquifer->addSubProperty(thickness);
    aquifer->addSubProperty(unconfined);
    aquifer->addSubProperty(conductivity);
    aquifer->addSubProperty(cells);
    aquifer->addSubProperty(place);
    manager.setAttribute(thickness, "minimum", 1.0);
    manager.setAttribute(thickness, "maximum", 1000.0);
    manager.setAttribute(thickness, "singleStep", 1.0);
    manager.setAttribute(thickness, "prefix", " m");
    manager.setAttribute(conductivity, "format", "g");
    manager.setAttribute(conductivity, "prefix", " m/s");
    manager.setAttribute(cells, "minimum", 1);
    manager.setAttribute(cells, "maximum", 5000);
    thickness->setValue(12.3456);
    conductivity->setValue(0.001);
    cells->setValue(400);
    for (QtProperty* const property : aquifer->subProperties())
      property->setModified(false);
    browser.setFactoryForManager(&manager, &factory);
    top = browser.addProperty(aquifer);
    browser.resize(500, 400);
    browser.show();
    QApplication::setActiveWindow(&browser);
    browser.setFocus();
  }

  QtBrowserItem* itemOf(const QtProperty* property) const {
    return browser.items(property).first();
  }
  QModelIndex cell(const QtProperty* property, int column = PropertyTreeModel::ValueColumn) const {
    return static_cast<const PropertyTreeModel*>(browser.view()->model())
        ->indexOf(itemOf(property), column);
  }
  /// The row of the property is the one that keys go to.
  void goTo(const QtProperty* property) { browser.setCurrentItem(itemOf(property)); }
  /// The middle of the row's value, for the mouse.
  QPoint spot(const QtProperty* property) const {
    return browser.view()->visualRect(cell(property)).center();
  }

  static QWidget* focused() { return QApplication::focusWidget(); }
  static void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(focused(), key, modifiers);
    QCoreApplication::processEvents(); // some of what editors tell is sent by way of the queue
  }
  /// Each letter goes to what has the focus: the first opens an editor, which takes the rest.
  static void type(const QString& text) {
    for (const QChar letter : text)
      QTest::keyClick(focused(), letter.toLatin1());
  }
  /// The open editor; null if there is none.
  template <typename Editor>
  Editor* editor() const {
    return browser.view()->viewport()->findChild<Editor*>();
  }

  QtVariantPropertyManager manager;
  QtVariantEditorFactory factory;
  QtTreePropertyBrowser browser;
  QtProperty* aquifer = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "Aquifer");
  QtProperty* thickness = manager.addProperty(QMetaType::Double, "Thickness");
  QtProperty* unconfined = manager.addProperty(QMetaType::Bool, "Unconfined");
  QtProperty* conductivity = manager.addProperty(QMetaType::Double, "Conductivity");
  QtProperty* cells = manager.addProperty(QMetaType::Int, "Cells");
  QtProperty* place = manager.addProperty(QMetaType::QString, "Place");
  QtBrowserItem* top = nullptr;
};
