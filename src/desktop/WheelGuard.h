#pragma once

#include <QObject>

namespace TVR::Desktop {

/// Lets the wheel change a spin box or a combo box only while it has the focus, and never gives it
/// the focus: whoever scrolls a form over one means the form. Installed on the application.
class WheelGuard final : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace TVR::Desktop
