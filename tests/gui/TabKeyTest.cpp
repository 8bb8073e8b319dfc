#include "gui/EveryPage.h"
#include "gui/Keyboard.h"
#include "gui/positions/SpreadsheetView.h"

#include <QRadioButton>
#include <QSet>

#include <algorithm>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// Goes over each page by keyboard.
class TabKey : public EveryPage {
protected:
  /// What can be used, in the order of the Tab key. Of buttons that exclude each other the first
  /// one stands for all, among which the arrows go.
  static QStringList inputs(const QWizardPage& page) {
    QStringList names;
    QSet<const QWidget*> groups;
    for (QWidget* w = page.nextInFocusChain(); w != &page; w = w->nextInFocusChain()) {
      if (!page.isAncestorOf(w) || !w->isVisible() || !w->isEnabled() || w->focusProxy() ||
          !(w->focusPolicy() & Qt::TabFocus) || w->objectName().startsWith("qt_"))
        continue;
      const bool isChoice = qobject_cast<QRadioButton*>(w);
      if (!isChoice || !groups.contains(w->parentWidget()))
        names << w->objectName();
      if (isChoice)
        groups.insert(w->parentWidget());
    }
    return names;
  }

  /// The inputs of a page that come one after the other from the button that cancels the
  /// wizard on, until that has the focus again.
  QStringList way(const QWizardPage& page, bool isBack) {
    constexpr int most = 60;
    QWidget* const begin = wizard.button(QWizard::CancelButton);
    begin->setFocus();
    QStringList names;
    for (int keys = 0; keys == 0 || (QApplication::focusWidget() != begin && keys < most); ++keys) {
      goOn(isBack);
      if (const QWidget* const input = inputWithFocus(); page.isAncestorOf(input))
        names << input->objectName();
    }
    return names;
  }

private:
  static QWidget* tableWithFocus() {
    QWidget* widget = QApplication::focusWidget();
    while (widget && !qobject_cast<SpreadsheetView*>(widget))
      widget = widget->parentWidget();
    return widget;
  }
  static QWidget* inputWithFocus() {
    QWidget* const table = tableWithFocus();
    return table ? table : QApplication::focusWidget();
  }
  /// In a table of wells Tab goes from cell to cell, and Ctrl+Tab out of it.
  static void goOn(bool isBack) {
    const Qt::KeyboardModifiers leaving = tableWithFocus() ? Qt::ControlModifier : Qt::NoModifier;
    if (isBack)
      hit(Qt::Key_Backtab, leaving | Qt::ShiftModifier);
    else
      hit(Qt::Key_Tab, leaving);
  }
};

TEST_F(TabKey, comesToAllThatCanBeUsedAndBackByTheSameWay) {
  store.setValue(NumberOfDemandsPerYear, 2);
  store.resizePeriods(2);
  onEachPage([this](const QWizardPage& page) {
    QApplication::setActiveWindow(&wizard);
    QStringList expected = inputs(page);
    EXPECT_EQ(way(page, false).join(' '), expected.join(' '));
    std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(way(page, true).join(' '), expected.join(' '));
  });
}

} // namespace
} // namespace TVR::GUI
