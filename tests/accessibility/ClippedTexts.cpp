#include "accessibility/AccessibilityLint.h"
#include "accessibility/Inputs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

namespace TVR::Test {
namespace {

constexpr int rounding = 1; // [px] that a layout may take off

int widthOf(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// A widget that breaks its text into lines says how high they are.
bool isSmallerThanItsHint(const QWidget& widget) {
  if (const int height = widget.heightForWidth(widget.width()); height >= 0)
    return height > widget.height() + rounding;
  const QSize hint = widget.sizeHint();
  return hint.width() > widget.width() + rounding || hint.height() > widget.height() + rounding;
}

/// A label that elides its text asks for less room than all of it.
bool isCut(const QLabel& label) {
  if (label.text().isEmpty())
    return false;
  if (label.wordWrap())
    return label.heightForWidth(label.width()) > label.height() + rounding;
  const QSize least = label.minimumSizeHint();
  return least.width() > label.width() + rounding || least.height() > label.height() + rounding;
}

bool isCut(const QAbstractButton& button) {
  const auto* const tool = qobject_cast<const QToolButton*>(&button);
  const bool showsText = !tool || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
  return showsText && !button.text().isEmpty() && isSmallerThanItsHint(button);
}

bool isCut(const QComboBox& box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.editable = box.isEditable();
  const int room =
      box.style()
          ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
          .width();
  for (int item = 0; item < box.count(); ++item) {
    const bool isRepeated = !box.itemData(item, Qt::ToolTipRole).toString().isEmpty();
    if (!isRepeated && widthOf(box, box.itemText(item)) > room + rounding)
      return true;
  }
  return box.fontMetrics().height() > box.height();
}

bool isCut(const QAbstractSpinBox& box) {
  QStyleOptionSpinBox option;
  option.initFrom(&box);
  option.buttonSymbols = box.buttonSymbols();
  option.frame = box.hasFrame();
  const QRect room =
      box.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, &box);
  return widthOf(box, box.text()) > room.width() || box.fontMetrics().height() > box.height();
}

/// Numbers and what cannot be changed are seen as a whole; other texts scroll as they are typed.
bool isCut(const QLineEdit& edit) {
  const bool isSeenWhole = edit.isReadOnly() || edit.validator();
  const QString text = isSeenWhole ? edit.text() : edit.placeholderText();
  return widthOf(edit, text) > edit.contentsRect().width() ||
         edit.fontMetrics().height() > edit.height();
}

bool isCut(const QTabBar& bar) {
  const int last = bar.count() - 1;
  return last >= 0 && !bar.rect().contains(bar.tabRect(last));
}

/// Whether the words of a heading do not fit into its section, in as many lines as they need.
bool isCutInLines(const QHeaderView& header, int section) {
  const QString text = header.model()->headerData(section, header.orientation()).toString();
  const QRect room(0, 0, header.sectionSize(section), header.height());
  const QRect needed = header.fontMetrics().boundingRect(room, Qt::TextWordWrap, text);
  return needed.width() > room.width() + rounding || needed.height() > room.height() + rounding;
}

bool isCut(const QHeaderView& header) {
  const bool hasLines = header.defaultAlignment() & static_cast<Qt::Alignment>(Qt::TextWordWrap);
  for (int section = 0; section < header.count(); ++section) {
    if (header.isSectionHidden(section))
      continue;
    if (hasLines ? isCutInLines(header, section)
                 : header.sectionSize(section) + rounding < header.sectionSizeHint(section))
      return true;
  }
  return false;
}

bool isCut(const QGroupBox& group) {
  if (group.inherits("TVR::GUI::WrappedGroupBox"))
    return group.minimumSizeHint().height() > group.height() + rounding;
  return widthOf(group, group.title()) > group.width();
}

/// A text that is broken into lines scrolls down only.
bool isCut(const QTextEdit& edit) {
  return edit.lineWrapMode() != QTextEdit::NoWrap && edit.horizontalScrollBar()->maximum() > 0;
}

bool isColumnHidden(const QAbstractItemView& view, int column) {
  if (const auto* const table = qobject_cast<const QTableView*>(&view))
    return table->isColumnHidden(column);
  if (const auto* const tree = qobject_cast<const QTreeView*>(&view))
    return tree->isColumnHidden(column);
  return false;
}

/// Whether a cell is smaller than what is in it, and no tool tip repeats that.
bool isCellCut(const QAbstractItemView& view, const QModelIndex& index) {
  const QSize room = view.visualRect(index).size();
  const QSize needed = view.sizeHintForIndex(index);
  const bool isCut =
      needed.width() > room.width() + rounding || needed.height() > room.height() + rounding;
  return isCut && index.data(Qt::ToolTipRole).toString().isEmpty();
}

bool hasCutCells(const QAbstractItemView& view) {
  const QAbstractItemModel* const model = view.model();
  for (int row = 0; model && row < model->rowCount(view.rootIndex()); ++row)
    for (int column = 0; column < model->columnCount(view.rootIndex()); ++column)
      if (!isColumnHidden(view, column) &&
          isCellCut(view, model->index(row, column, view.rootIndex())))
        return true;
  return false;
}

bool isCut(const QAbstractItemView& view) {
  const auto headers = view.findChildren<QHeaderView*>();
  return hasCutCells(view) ||
         std::any_of(headers.begin(), headers.end(), [&](const QHeaderView* header) {
           return header->isVisibleTo(&view) && isCut(*header);
         });
}

/// Whether a widget is of the class, and its text cut.
template <typename Class>
bool isCutAs(const QWidget& widget) {
  const auto* const typed = qobject_cast<const Class*>(&widget);
  return typed && isCut(*typed);
}

bool isCut(const QWidget& widget) {
  return isCutAs<QLabel>(widget) || isCutAs<QAbstractButton>(widget) ||
         isCutAs<QComboBox>(widget) || isCutAs<QAbstractSpinBox>(widget) ||
         isCutAs<QLineEdit>(widget) || isCutAs<QTabBar>(widget) || isCutAs<QGroupBox>(widget) ||
         isCutAs<QTextEdit>(widget) || isCutAs<QAbstractItemView>(widget);
}

/// Whether a widget reaches out of the one that it lies in, where nothing scrolls to it.
bool reachesOut(const QWidget& widget) {
  const QWidget& parent = *widget.parentWidget();
  const bool scrolls = qobject_cast<const QAbstractScrollArea*>(parent.parentWidget());
  return !scrolls && !parent.rect().contains(widget.geometry());
}

} // namespace

QStringList clippedTexts(QWidget& window) {
  QStringList faults;
  for (const QWidget* const widget : visibleWidgets(window)) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const bool repeated = label && !label->toolTip().isEmpty();
    if (!repeated && isCut(*widget))
      faults << described(*widget) + " is too small for its text";
    if (reachesOut(*widget))
      faults << described(*widget) + " reaches out of " + described(*widget->parentWidget());
  }
  return faults;
}

} // namespace TVR::Test
