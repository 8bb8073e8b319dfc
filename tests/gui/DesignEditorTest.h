#pragma once

#include "gui/DesignPropertyEditor.h"
#include "gui/Keyboard.h"
#include "messages/UserMessages.h"
#include "support/ProjectTest.h"
#include "support/TestMessenger.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <vector>

namespace TVR::GUI {

/// The panel of a project with two wells, in a window that has the focus, and a user with mouse and
/// keys.
class DesignEditorTest : public ProjectTest {
protected:
  DesignEditorTest() {
    setMessenger(&user);
    read(BatchProject::doublet());
    QObject::connect(&editor, &DesignPropertyEditor::wizardRequested,
                     [this](Wizard wizard) { wizards.push_back(wizard); });
    editor.resize(500, 1400);
    editor.show();
    QApplication::setActiveWindow(&editor);
    QCoreApplication::processEvents();
  }
  ~DesignEditorTest() override {
    setMessenger(nullptr);
    store.reset();
  }

  QtProperty& property(int id) { return *editor.tree().propertyOfId().at(id); }
  QtTreePropertyBrowser& browser() { return *editor.tree().browser(); }
  QTreeView& view() { return *browser().view(); }
  QtBrowserItem& item(int id) { return *browser().items(&property(id)).first(); }
  bool isShown(int id) { return browser().isItemVisible(&item(id)); }
  QString text(int id) { return property(id).valueText(); }

  /// A cell of a row, scrolled into sight.
  QRect cell(int id, int column) {
    browser().setCurrentItem(&item(id));
    const QModelIndex index = view().currentIndex().siblingAtColumn(column);
    view().scrollTo(index);
    return view().visualRect(index);
  }
  void doubleClick(int id) {
    const QPoint point = cell(id, 0).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, point);
  }
  /// The project changes without the panel, which hears of it.
  void set(int id, const QVariant& value) {
    store.setValue(id, value);
    QCoreApplication::processEvents();
  }
  static void press(QAbstractButton* button) { QTest::mousePress(button, Qt::LeftButton); }
  void edit() { press(editor.editButton); }
  void apply() { press(editor.applyAndRunButton); }
  bool mayApply() { return editor.applyAndRunButton->isEnabled(); }

  /// Opens the editor of a value, types in the place of what is there and ends with Enter.
  void type(int id, const QString& typed) {
    browser().setCurrentItem(&item(id));
    QTest::keyClick(&view(), Qt::Key_F2);
    ASSERT_NE(QApplication::focusWidget(), &view()) << "no editor for " << id;
    hit(Qt::Key_A, Qt::ControlModifier);
    keys(typed);
    hit(Qt::Key_Return);
    QCoreApplication::processEvents(); // a line takes what was typed after the key
  }
  /// Changes a check mark.
  void toggle(int id) {
    browser().setCurrentItem(&item(id));
    QTest::keyClick(&view(), Qt::Key_Space);
  }
  void put(int well, double x, double y) {
    store.setCells(ProjectTable::Well, {{well, WellModel::X, x}, {well, WellModel::Y, y}});
  }

  TestMessenger user;
  DesignPropertyEditor editor{store};
  std::vector<Wizard> wizards; ///< that were asked for
};

} // namespace TVR::GUI
