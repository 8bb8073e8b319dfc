#pragma once

#include <QDialog>

namespace TVR::Desktop {

/// Says what the program is, who may use it, and what it was built from.
class AboutDialog final : public QDialog {
  Q_OBJECT

public:
  /// `copyright` is HTML; `build` are rows of an HTML table. Either may be empty.
  AboutDialog(const QString& copyright, const QString& build, QWidget* parent = nullptr);
};

} // namespace TVR::Desktop
