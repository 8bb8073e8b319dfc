#pragma once

#include <QDialog>

class QLabel;

namespace TVR::GUI {

/// Shows the copyright notice on white ground, and closes by itself after a while.
class CopyrightDialog : public QDialog {
  Q_OBJECT

public:
  /// How long it stays [ms].
  static constexpr int duration = 8000;

  explicit CopyrightDialog(QWidget* parent = nullptr);

  /// The notice, as HTML. The dialog becomes as high as that needs.
  void setLabel(const QString& html);

private:
  QLabel* const label_;
};

} // namespace TVR::GUI
