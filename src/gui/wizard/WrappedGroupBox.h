#pragma once

#include <QGroupBox>

namespace TVR::GUI {

/// A group whose title goes on in further lines where it is too long for one. Frame and
/// content begin below them.
class WrappedGroupBox : public QGroupBox {
  Q_OBJECT

public:
  using QGroupBox::QGroupBox;

  QSize minimumSizeHint() const override;

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  QStringList titleLines() const;
  int heightOfFurtherLines() const;
  void makeRoomForTitle();
};

} // namespace TVR::GUI
