#pragma once

#include <QObject>

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
};

/// The actions of the host's own commands, made from one table.
class HostActions final : public QObject {
  Q_OBJECT

public:
  explicit HostActions(QObject* parent = nullptr);

  QAction* operator[](Command command) const { return actions_.at(command); }
  /// The commands of a menu, in the order in which they stand there; null for a separator.
  std::vector<QAction*> of(MenuId menu) const;
  void enableFor(const Situation& situation);
  /// Texts in the language of now.
  void retranslate();

private:
  std::map<Command, QAction*> actions_;
};

} // namespace TVR::Desktop
