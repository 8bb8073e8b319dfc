#include "gui/wizard/WrappedGroupBox.h"

#include <QEvent>
#include <QLayout>
#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <QTextLayout>

#include <algorithm>

namespace TVR::GUI {

namespace {

/// What stands before the title, and as much behind it.
int besideTitle(const QGroupBox& box) {
  const int indicator = box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box) +
                        box.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &box);
  constexpr int margin = 8;
  return (box.isCheckable() ? indicator : 0) + 2 * margin;
}

} // namespace

QStringList WrappedGroupBox::titleLines() const {
  QTextLayout layout(title(), font());
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(std::max(1, width() - besideTitle(*this)));
    lines << title().mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines;
}

int WrappedGroupBox::heightOfFurtherLines() const {
  return std::max(0, titleLines().size() - 1) * fontMetrics().lineSpacing();
}

QSize WrappedGroupBox::minimumSizeHint() const {
  int longestWord = 0;
  for (const QString& word : title().split(' '))
    longestWord = std::max(longestWord, fontMetrics().horizontalAdvance(word));
  const QSize content = layout() ? layout()->totalMinimumSize() : QSize();
  return QSize(longestWord + besideTitle(*this), 0).expandedTo(content);
}

bool WrappedGroupBox::event(QEvent* event) {
  const bool isHandled = QGroupBox::event(event);
  if (event->type() == QEvent::Resize || event->type() == QEvent::ContentsRectChange)
    makeRoomForTitle();
  return isHandled;
}

void WrappedGroupBox::makeRoomForTitle() {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  const QRect inside =
      style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
  const QMargins margins(inside.left(), inside.top() + heightOfFurtherLines(),
                         width() - inside.right() - 1, height() - inside.bottom() - 1);
  if (margins != contentsMargins())
    setContentsMargins(margins);
}

void WrappedGroupBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  const QStringList lines = titleLines();
  const QStyle::SubControls title = option.subControls & ~QStyle::SC_GroupBoxFrame;
  option.subControls = QStyle::SC_GroupBoxFrame;
  option.rect.setTop(heightOfFurtherLines());
  painter.drawComplexControl(QStyle::CC_GroupBox, option);
  option.subControls = title;
  option.rect = rect();
  option.text = lines.value(0);
  painter.drawComplexControl(QStyle::CC_GroupBox, option);
  QRect line =
      style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
  line.setRight(width());
  for (int i = 1; i < lines.size(); ++i) {
    line.translate(0, fontMetrics().lineSpacing());
    painter.drawItemText(line, Qt::AlignLeft, palette(), isEnabled(), lines[i],
                         QPalette::WindowText);
  }
}

} // namespace TVR::GUI
