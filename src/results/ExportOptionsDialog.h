#pragma once

#include "results/PageAccess.h"

#include <QFileDialog>

#include <optional>

class QCheckBox;

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

/// Asks for the file of an export and, in a row of its own among the fields below the list of
/// files, for the isolines that go into it.
class ExportOptionsDialog : public QFileDialog {
  Q_OBJECT

public:
  /// A dialog that begins in `directory`, with the boxes checked or not.
  ExportOptionsDialog(const QString& title, const QString& filter, const QString& directory,
                      bool isohypses, bool isotherms, QWidget* parent = nullptr);

  bool savesIsohypses() const;
  bool savesIsotherms() const;

private:
  QCheckBox* const isohypses_;
  QCheckBox* const isotherms_;
};

/// The answer of the user.
struct ExportChoice {
  QString fileName;
  bool isohypses;
  bool isotherms;
};

/// Shows the dialog for the results of this page and keeps what the user chose: the directory with
/// the host (which may be null), the boxes in the project. Nothing, and no dialog, if the page
/// shows no results; nothing if the user gives up.
std::optional<ExportChoice> askForExport(const PageAccess& page,
                                         BrenvikApp::ApplicationInterface* host,
                                         const QString& title, const QString& filter);

} // namespace TVR
