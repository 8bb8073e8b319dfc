#include "accessibility/AccessibilityLint.h"
#include "accessibility/Inputs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>

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

bool isCut(const QLineEdit& edit) {
  const QString text = edit.isReadOnly() ? edit.text() : edit.placeholderText();
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

/// Whether a widget is of the class, and its text cut.
template <typename Class>
bool isCutAs(const QWidget& widget) {
  const auto* const typed = qobject_cast<const Class*>(&widget);
  return typed && isCut(*typed);
}

bool isCut(const QWidget& widget) {
  if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
    const auto headers = view->findChildren<QHeaderView*>();
    return std::any_of(headers.begin(), headers.end(), [&](const QHeaderView* header) {
      return header->isVisibleTo(view) && isCut(*header);
    });
  }
  return isCutAs<QLabel>(widget) || isCutAs<QAbstractButton>(widget) ||
         isCutAs<QComboBox>(widget) || isCutAs<QAbstractSpinBox>(widget) ||
         isCutAs<QLineEdit>(widget) || isCutAs<QTabBar>(widget) || isCutAs<QGroupBox>(widget);
}

} // namespace

QStringList clippedTexts(QWidget& window) {
  QStringList faults;
  for (const QWidget* const widget : visibleWidgets(window)) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const bool repeated = label && !label->toolTip().isEmpty();
    if (!repeated && isCut(*widget))
      faults << described(*widget) + " is too small for its text";
  }
  return faults;
}

} // namespace TVR::Test
