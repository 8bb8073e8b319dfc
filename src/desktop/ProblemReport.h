#pragma once

#include <QDialog>

namespace TVR::Desktop {

/// Shows what a report of a problem should hold, to be copied: versions, system, and the log.
class ProblemReport final : public QDialog {
  Q_OBJECT

public:
  explicit ProblemReport(QWidget* parent = nullptr);

  static QString text();
};

} // namespace TVR::Desktop
