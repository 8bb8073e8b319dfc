#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace TVR::GUI {

/// A radio button whose text goes on in further lines where it is too long for one.
class WrappedRadioButton : public QRadioButton {
  Q_OBJECT

public:
  explicit WrappedRadioButton(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The same with a check mark.
class WrappedCheckBox : public QCheckBox {
  Q_OBJECT

public:
  explicit WrappedCheckBox(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace TVR::GUI
