#pragma once

#include <QWizard>

namespace TVR::GUI {

/// A wizard that keeps what its pages have taken when it is cancelled: a page is reset on the way
/// back only, and asks then. It grows if what it shows needs more room, as with large letters.
/// Assistive technology finds on its pages what is there.
class InputWizard : public QWizard {
  Q_OBJECT

public:
  explicit InputWizard(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

  bool eventFilter(QObject* watched, QEvent* event) override;
  void done(int result) override;

protected:
  void cleanupPage(int id) override;

private:
  bool isCancelled_ = false;
};

} // namespace TVR::GUI
