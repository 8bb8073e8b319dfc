#include "accessibility/AccessibilityLint.h"

#include "accessibility/Inputs.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QWizard>

#include <algorithm>

namespace TVR::Test {
namespace {

bool hasBuddy(const QWidget& input, const QVector<QWidget*>& widgets) {
  return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    return label && label->buddy() == &input && !label->text().isEmpty();
  });
}

/// Whether assistive technology has something to call an input. A label is enough for most, but not
/// for lists, tables and trees. What it calls a combo box is the chosen entry, so that this one
/// needs a label or a name all the same.
bool isNamed(QWidget& input, const QVector<QWidget*>& widgets) {
  if (input.objectName().startsWith("qt_"))
    return true; // the library's own
  if (qobject_cast<QComboBox*>(&input))
    return !input.accessibleName().isEmpty() || hasBuddy(input, widgets);
  const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&input);
  return face && !face->text(QAccessible::Name).isEmpty();
}

/// The children of a widget as they are read: in rows, where what begins above the middle of the
/// first of a row's height stands in that row.
QVector<QWidget*> childrenAsRead(const QWidget& parent) {
  QVector<QWidget*> children;
  for (QObject* const child : parent.children()) {
    auto* const widget = qobject_cast<QWidget*>(child);
    if (widget && !widget->isWindow() && widget->isVisible())
      children.append(widget);
  }
  std::stable_sort(children.begin(), children.end(),
                   [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });
  for (int begin = 0, end = 0; begin < children.size(); begin = end) {
    const int bottom = children[begin]->geometry().bottom();
    while (end < children.size() && children[end]->geometry().center().y() <= bottom)
      ++end;
    end = std::max(end, begin + 1);
    std::stable_sort(children.begin() + begin, children.begin() + end,
                     [](const QWidget* a, const QWidget* b) { return a->x() / 10 < b->x() / 10; });
  }
  return children;
}

bool takesTab(const QWidget& widget) {
  return widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

void collectAsRead(const QWidget& parent, QVector<QWidget*>& found) {
  for (QWidget* const child : childrenAsRead(parent)) {
    if (takesTab(*child))
      found.append(child);
    if (!isInput(*child))
      collectAsRead(*child, found);
  }
}

QStringList tabOrderFaultsWithin(const QWidget& part, const QWidget& window) {
  QVector<QWidget*> asRead;
  collectAsRead(part, asRead);
  QVector<QWidget*> byTab;
  // A wizard gives the focus to its page, and its buttons come behind that.
  const auto* const wizard = qobject_cast<const QWizard*>(&window);
  const QWidget* const first = wizard && wizard->currentPage() ? wizard->currentPage() : &window;
  for (QWidget* next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain()) {
    if (asRead.contains(next))
      byTab.append(next);
  }
  const auto [read, tab] = std::mismatch(asRead.begin(), asRead.end(), byTab.begin(), byTab.end());
  if (read == asRead.end())
    return {};
  const QString before = read == asRead.begin() ? "the beginning" : described(**(read - 1));
  return {QString("after %1 Tab goes to %2, and the eye to %3")
              .arg(before, tab == byTab.end() ? "nothing" : described(**tab), described(**read))};
}

using Claims = QMap<QString, QStringList>;

void claim(Claims& claims, const QString& text) {
  const QKeySequence mnemonic = QKeySequence::mnemonic(text);
  if (!mnemonic.isEmpty())
    claims[mnemonic.toString()].append('"' + text + '"');
}

void claimOf(Claims& claims, const QWidget& widget) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    if (label->buddy())
      claim(claims, label->text());
  } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    claim(claims, button->text());
  } else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
    claim(claims, group->title());
  } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int tab = 0; tab < tabs->count(); ++tab)
      claim(claims, tabs->tabText(tab));
  } else if (const auto* const bar = qobject_cast<const QMenuBar*>(&widget)) {
    for (const QAction* const action : bar->actions())
      claim(claims, action->text());
  }
}

QStringList doubleClaims(const Claims& claims, const QString& where) {
  QStringList faults;
  for (auto entry = claims.begin(); entry != claims.end(); ++entry) {
    if (entry.value().size() > 1)
      faults << QString("%1 in %2 stands for %3").arg(entry.key(), where, entry.value().join(", "));
  }
  return faults;
}

} // namespace

QStringList unnamedInputs(QWidget& window) {
  QStringList faults;
  const QVector<QWidget*> widgets = visibleWidgets(window);
  for (QWidget* const widget : widgets) {
    if (isInput(*widget) && !isNamed(*widget, widgets))
      faults << described(*widget) + " has no name";
  }
  return faults;
}

QStringList tabOrderFaults(QWidget& window) {
  if (!qobject_cast<QMainWindow*>(&window))
    return tabOrderFaultsWithin(window, window);
  QStringList faults;
  for (const QWidget* const part : childrenAsRead(window))
    faults << tabOrderFaultsWithin(*part, window);
  return faults;
}

QStringList mnemonicFaults(QWidget& window) {
  Claims claims;
  for (const QWidget* const widget : visibleWidgets(window))
    claimOf(claims, *widget);
  QStringList faults = doubleClaims(claims, described(window));
  for (const QMenu* const menu : window.findChildren<QMenu*>()) {
    Claims entries;
    for (const QAction* const action : menu->actions())
      claim(entries, action->text());
    faults << doubleClaims(entries, QString("the menu \"%1\"").arg(menu->title()));
  }
  return faults;
}

QStringList accessibilityFaults(QWidget& window) {
  return unnamedInputs(window) + tabOrderFaults(window) + mnemonicFaults(window) +
         clippedTexts(window);
}

} // namespace TVR::Test
