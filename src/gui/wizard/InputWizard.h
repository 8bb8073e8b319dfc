#pragma once

#include <QWizard>

namespace TVR::GUI {

/// A wizard that keeps what its pages have taken when it is cancelled: a page is reset on the way
/// back only, and asks then.
class InputWizard : public QWizard {
  Q_OBJECT

public:
  using QWizard::QWizard;

  void done(int result) override;

protected:
  void cleanupPage(int id) override;

private:
  bool isCancelled_ = false;
};

} // namespace TVR::GUI
