#pragma once

#include "keeping/ProjectDifferences.h"

#include <QDateTime>
#include <QDialog>
#include <QList>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace TVR::GUI {

/// A project that a program left unsaved, as the dialog shows it.
struct UnsavedProject {
  QString title;
  QString file;                  ///< of the user; empty if the project was never saved
  QDateTime keptAt;              ///< when it was saved automatically
  QDateTime savedAt;             ///< when its file was; not valid if there is none
  bool isCompared = true;        ///< with its file, which a batch file is too little for
  bool isWhole = true;           ///< or else it can't be read and only be discarded
  QList<Difference> differences; ///< from the saved state to the kept one
};

/// Shows what earlier programs left unsaved, and for the chosen project how what was kept differs
/// from its file. The dialog only asks; whoever made it does what is wanted.
class RecoveryDialog : public QDialog {
  Q_OBJECT

public:
  /// The first project is chosen.
  explicit RecoveryDialog(QList<UnsavedProject> projects, QWidget* parent = nullptr);

  /// Takes a project off the list, whose rows are counted anew; the dialog closes with the last.
  void removeProject(int row);

signals:
  /// The user wants this row of the list back.
  void recoveryWanted(int row);
  void discardWanted(int row);

private:
  void fillProjects();
  void showChosen();
  int chosenRow() const;

  QList<UnsavedProject> projects_;
  QTreeWidget* const list_;
  QLabel* const remark_;
  QTreeWidget* const differences_;
  QLabel* const others_; ///< what becomes of the projects that are not chosen
  QPushButton* recover_ = nullptr;
};

} // namespace TVR::GUI
