#pragma once

#include "gui/ProjectWizards.h"
#include "gui/editor/ChangeMarks.h"
#include "gui/editor/DesignTree.h"
#include "gui/editor/PropertyEdits.h"
#include "gui/editor/TreeAids.h"
#include "project/ProjectReader.h"
#include "ui_DesignPropertyEditor.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// The panel of the project: the file that it lies in, how a running simulation goes on, and the
/// design as a tree. Values are viewed until `editButton` is pressed. Then they can be typed; what
/// was typed reaches the project when it is applied, but for a few values that do at once.
class DesignPropertyEditor : public QWidget, public Ui::DesignPropertyEditor {
  Q_OBJECT

public:
  /// Shows the project of `store`, which outlives the panel.
  explicit DesignPropertyEditor(Data::Manager& store, QWidget* parent = nullptr);
  ~DesignPropertyEditor() override;

  /// Names the file of the project; an empty name stands for a project that was never saved.
  void showFile(const QString& fileName);
  /// The file that the panel names; empty for a project that was never saved.
  QString shownFile() const;

  /// Says what is to be known of the results, beside the file, and why in its tool tip, a line for
  /// each reason; nothing for an empty text. All are plain texts.
  void showResultState(const QString& state, const QStringList& reasons);

  DesignTree& tree() { return *tree_; }
  bool isEditing() const { return isEditing_; }

  /// Lets the tree tell where values come from.
  void setOrigins(const std::shared_ptr<const Data::ValueOrigins>& origins);

  /// Sets all texts in the language of the moment.
  void retranslate();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

signals:
  void processCanceled();
  /// The user wants to see the wizard that owns a value.
  void wizardRequested(TVR::GUI::Wizard wizard);
  /// While `liveButton` is down: all that is typed but not applied, whenever it is another and may
  /// be applied.
  void liveEdited(const TVR::GUI::PropertyEdits& edits);
  /// What was told by liveEdited() counts no more: it is applied, was given up, or the button is
  /// up.
  void liveEnded();

public slots:
  /// Shows or hides the progress of a run.
  void showProgress(bool visible);
  void initialisePropertyView();
  /// Reads all values anew; what was typed is given up.
  void updatePropertyView();
  void enableEditing();
  /// Ends the editing; what was typed and not applied is given up.
  void disableEditing();
  /// Enables `applyAndRunButton` if what was typed may be run.
  void checkApplyAndRun();
  /// Asks for the wizard that owns the value of a row of the tree, unless it is being edited.
  void doubleClicked(const QModelIndex& index);
  /// Expands again what may not stay collapsed.
  void itemCollapsed(QtBrowserItem* item);
  /// A value was typed.
  void propertyChanged(QtProperty* property, const QVariant& value);
  /// Writes what was typed into the project and starts a run of it.
  void applyAndRun();
  void cancelProcess();

protected:
  void changeEvent(QEvent* event) override;

private:
  void connectWidgets();
  void nameRows();
  void showEditing(bool isEditing);
  void refresh();
  void showProject(DesignTree::Typed typed);
  /// The project with what was typed.
  ProjectOverlay typedProject() const;
  void follow(int id, const QVariant& value);
  void deriveThickness();
  void showConsequences();
  QColor flashColour() const;
  void tellLive();

  Data::Manager& store_;
  DesignTree* tree_;
  TreeAids* aids_;
  ChangeMarks marks_;
  std::unique_ptr<Data::Manager> trial_; ///< for rules whose results nobody keeps
  QTimer refresh_;
  QString fileName_;
  bool isEditing_ = false;
  bool isShowing_ = false; ///< values change because the project did, not because one was typed
};

} // namespace TVR::GUI
