#pragma once

#include <QObject>
#include <QString>

#include <map>
#include <vector>

class QAction;

namespace TVR::Desktop {

/// The host's own commands.
enum class Command {
  Save,
  ExportPdf,
  ExportPng,
  ExportSvg,
  ExportIsolines,
  ExportDrawing,
  PageSetup,
  PrintPreview,
  Print,
  CloseWindow,
  Quit,
  Undo,
  Redo,
  CopyPage,
  ZoomIn,
  ZoomOut,
  WholePage,
  PageWidth,
  ActualSize,
  ToolBar,
  Dock,
  FullScreen,
  Run,
  CancelRun,
  NextWindow,
  PreviousWindow,
  Guide,
  ReportProblem,
  About,
  AboutQt,
  Count
};

/// The menus that the commands stand in.
enum class MenuId { File, Export, Edit, View, Plugin, Window, Help };

/// What the state of the program must be for a command.
struct Situation {
  bool hasPage = false; ///< the active window shows a page
  int windows = 0;      ///< of the workspace
  bool hasDocument = false;
  bool isRunning = false;
  QString undoName; ///< of the step of the user that can be undone; empty if there is none
  QString redoName;
};

/// The actions of the host's own commands, made from one table.
class HostActions final : public QObject {
  Q_OBJECT

public:
  explicit HostActions(QObject* parent = nullptr);

  QAction* operator[](Command command) const { return actions_.at(command); }
  /// The commands of a menu, in the order in which they stand there; null for a separator.
  std::vector<QAction*> of(MenuId menu) const;
  /// Enables what can be done, and says which step would be undone.
  void enableFor(const Situation& situation);
  /// Texts in the language of now.
  void retranslate();

private:
  void nameSteps();

  QString undoName_;
  QString redoName_;
  std::map<Command, QAction*> actions_;
};

} // namespace TVR::Desktop
