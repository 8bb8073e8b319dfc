#include "gui/wizard/WrappedButtons.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace TVR::GUI {

namespace {

/// The words of a text in lines no wider than `width` [pixels], but for a word that is wider.
QString wrapped(const QString& text, const QFontMetrics& font, int width) {
  QString lines;
  QString line;
  for (const QString& word : text.split(' ')) {
    const QString longer = line.isEmpty() ? word : line + ' ' + word;
    if (line.isEmpty() || font.horizontalAdvance(longer) <= width) {
      line = longer;
      continue;
    }
    lines += line + '\n';
    line = word;
  }
  return lines + line;
}

/// What a button takes beside its text in one line. `hint` is that of the class of Qt.
QSize besideText(const QAbstractButton& button, const QSize& hint) {
  const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
  return {hint.width() - text.width(), hint.height() - text.height()};
}

QString textIn(const QAbstractButton& button, const QSize& hint, int width) {
  return wrapped(button.text(), button.fontMetrics(), width - besideText(button, hint).width());
}

QSize sizeWith(const QAbstractButton& button, const QSize& hint, const QString& lines) {
  return besideText(button, hint) + button.fontMetrics().size(Qt::TextShowMnemonic, lines);
}

int heightIn(const QAbstractButton& button, const QSize& hint, int width) {
  return sizeWith(button, hint, textIn(button, hint, width)).height();
}

/// A few words a line, of which there are as many as needed.
QSize usualSize(const QAbstractButton& button, const QSize& hint) {
  constexpr int letters = 40;
  const int width = std::min(hint.width(), button.fontMetrics().averageCharWidth() * letters);
  return sizeWith(button, hint, textIn(button, hint, width));
}

QSize smallestSize(const QAbstractButton& button, const QSize& hint) {
  return {sizeWith(button, hint, textIn(button, hint, 0)).width(), hint.height()};
}

void growWithText(QAbstractButton& button) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  button.setSizePolicy(policy);
}

void paint(QAbstractButton& button, QStyle::ControlElement element, const QSize& hint,
           QStyleOptionButton& option) {
  option.text = textIn(button, hint, button.width());
  QStylePainter(&button).drawControl(element, option);
}

} // namespace

WrappedRadioButton::WrappedRadioButton(QWidget* parent) : QRadioButton(parent) {
  growWithText(*this);
}

QSize WrappedRadioButton::sizeHint() const {
  return usualSize(*this, QRadioButton::sizeHint());
}

QSize WrappedRadioButton::minimumSizeHint() const {
  return smallestSize(*this, QRadioButton::sizeHint());
}

int WrappedRadioButton::heightForWidth(int width) const {
  return heightIn(*this, QRadioButton::sizeHint(), width);
}

void WrappedRadioButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  paint(*this, QStyle::CE_RadioButton, QRadioButton::sizeHint(), option);
}

WrappedCheckBox::WrappedCheckBox(QWidget* parent) : QCheckBox(parent) {
  growWithText(*this);
}

QSize WrappedCheckBox::sizeHint() const {
  return usualSize(*this, QCheckBox::sizeHint());
}

QSize WrappedCheckBox::minimumSizeHint() const {
  return smallestSize(*this, QCheckBox::sizeHint());
}

int WrappedCheckBox::heightForWidth(int width) const {
  return heightIn(*this, QCheckBox::sizeHint(), width);
}

void WrappedCheckBox::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  paint(*this, QStyle::CE_CheckBox, QCheckBox::sizeHint(), option);
}

} // namespace TVR::GUI
