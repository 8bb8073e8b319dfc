#pragma once

#include <QWizard>

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// A wizard that keeps what its pages have taken when it is cancelled: a page is reset on the way
/// back only, and asks then. It grows if what it shows needs more room, as with large letters.
/// Assistive technology finds on its pages what is there.
class InputWizard : public QWizard {
  Q_OBJECT

public:
  explicit InputWizard(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

  /// What is taken from a page is one step of the user in `store`, which outlives the wizard, and
  /// so is the reset of a page.
  void keepStepsIn(Data::Manager& store) { store_ = &store; }

  bool validateCurrentPage() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void done(int result) override;

protected:
  void cleanupPage(int id) override;

private:
  Data::Manager* store_ = nullptr; ///< null: steps are nobody's concern
  bool isCancelled_ = false;
};

} // namespace TVR::GUI
