#include "desktop/HostActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>

#include <iterator>

namespace TVR::Desktop {

namespace {

constexpr char context[] = "TVR::Desktop::HostActions";

enum class Needs { Nothing, Page, Window, TwoWindows, Document, NoRun, Run, Undoable, Redoable };

struct ActionRow {
  Command command;
  MenuId menu;
  const char* name; ///< of the object
  const char* text;
  const char* tip;
  const char* shortcut;
  const char* icon; ///< below ":/desktop/images/"
  Needs needs;
  bool startsGroup = false; ///< a separator stands before it
  bool isCheckable = false;
};

constexpr ActionRow rows[] = {
    {Command::Save, MenuId::File, "save", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Sa&ve"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Saves the project to the file that it was opened from"),
     "Ctrl+S", "tvr_save", Needs::Document},
    {Command::ExportPdf, MenuId::Export, "export_pdf",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Page as &PDF..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Writes the page to a PDF file, at its size"),
     "", "export_pdf", Needs::Page},
    {Command::ExportPng, MenuId::Export, "export_png",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Page as P&NG..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Writes the page to a picture of pixels"), "",
     "export_png", Needs::Page},
    {Command::ExportSvg, MenuId::Export, "export_svg",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Page as &SVG..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Writes the page to a picture of lines"), "",
     "export_svg", Needs::Page},
    {Command::ExportIsolines, MenuId::Export, "export_isolines",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Isolines as DXF..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Writes the isolines of the page to a DXF file"),
     "", "", Needs::Page, true},
    {Command::ExportDrawing, MenuId::Export, "export_drawing",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Drawing as DXF..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Writes wells, isolines and texts of the map to a drawing for CAD programs"),
     "", "", Needs::Page},
    {Command::PageSetup, MenuId::File, "page_setup",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Page Set-&up..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Chooses the paper that pages are printed on"),
     "", "page_setup", Needs::Page, true},
    {Command::PrintPreview, MenuId::File, "print_preview",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Print Previe&w..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the page as it will be printed"), "",
     "print_preview", Needs::Page},
    {Command::Print, MenuId::File, "print",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Pr&int..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Prints the page"), "Ctrl+P", "print",
     Needs::Page},
    {Command::CloseWindow, MenuId::File, "close_window",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Close Window"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Closes the active window of the workspace"),
     "Ctrl+W", "close_window", Needs::Window, true},
    {Command::Quit, MenuId::File, "quit", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Quit"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Ends the program"), "Ctrl+Q", "quit",
     Needs::Nothing},
    {Command::Undo, MenuId::Edit, "undo", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Undo"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Takes back the last change of the project"),
     "Ctrl+Z", "", Needs::Undoable},
    {Command::Redo, MenuId::Edit, "redo", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Redo"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Makes again what was undone last"),
     "Ctrl+Shift+Z", "", Needs::Redoable},
    {Command::CopyPage, MenuId::Edit, "copy_page",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Copy Page as Picture"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Copies the page to the clipboard"),
     "Ctrl+Shift+C", "copy_page", Needs::Page, true},
    {Command::ZoomIn, MenuId::View, "zoom_in",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Zoom &In"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the page larger"), "Ctrl++", "zoom_in",
     Needs::Page},
    {Command::ZoomOut, MenuId::View, "zoom_out",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Zoom &Out"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the page smaller"), "Ctrl+-", "zoom_out",
     Needs::Page},
    {Command::WholePage, MenuId::View, "whole_page",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Whole Page"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the whole page in its window"), "Ctrl+0",
     "whole_page", Needs::Page},
    {Command::PageWidth, MenuId::View, "page_width",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Page Wi&dth"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the page as wide as its window"),
     "Ctrl+2", "page_width", Needs::Page},
    {Command::ActualSize, MenuId::View, "actual_size",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&100 %"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows the page as large as on paper"),
     "Ctrl+1", "actual_size", Needs::Page},
    {Command::ToolBar, MenuId::View, "tool_bar",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Tool Bar"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows or hides the tool bar"), "", "",
     Needs::Nothing, true, true},
    {Command::Dock, MenuId::View, "dock",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Project Data"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Shows or hides the window with the data of the project"),
     "", "", Needs::Nothing, false, true},
    {Command::FullScreen, MenuId::View, "full_screen",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Full Screen"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Fills the screen with the program"), "F11",
     "full_screen", Needs::Nothing, true, true},
    {Command::Run, MenuId::Plugin, "run",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Run Simulation"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Computes drawdown and temperatures of the project"),
     "Ctrl+R", "run", Needs::NoRun, true},
    {Command::CancelRun, MenuId::Plugin, "cancel_run",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Cancel Simulation"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Ends the simulation at its next step"), "",
     "cancel_run", Needs::Run},
    {Command::NextWindow, MenuId::Window, "next_window",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Next Window"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Goes to the next window of the workspace"),
     "Ctrl+Tab", "next_window", Needs::TwoWindows},
    {Command::PreviousWindow, MenuId::Window, "previous_window",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Previous Window"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Goes to the previous window of the workspace"),
     "Ctrl+Shift+Tab", "previous_window", Needs::TwoWindows},
    {Command::Guide, MenuId::Help, "guide",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "User &Guide"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Opens the user guide"), "F1", "guide",
     Needs::Nothing},
    {Command::ReportProblem, MenuId::Help, "report_problem",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Report a Problem..."),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows what a report of a problem should hold"),
     "", "report_problem", Needs::Nothing},
    {Command::About, MenuId::Help, "about",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&About Tevrane"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "Shows version and copyright"), "", "tvr",
     Needs::Nothing, true},
    {Command::AboutQt, MenuId::Help, "about_qt",
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "About &Qt"),
     QT_TRANSLATE_NOOP("TVR::Desktop::HostActions",
                       "Shows the version of the library of the windows"),
     "", "", Needs::Nothing},
};

static_assert(std::size(rows) == static_cast<std::size_t>(Command::Count));

QAction::MenuRole menuRole(Command command) {
  switch (command) {
  case Command::Quit:
    return QAction::QuitRole;
  case Command::About:
    return QAction::AboutRole;
  case Command::AboutQt:
    return QAction::AboutQtRole;
  default:
    return QAction::NoRole;
  }
}

bool isMet(Needs needs, const Situation& situation) {
  switch (needs) {
  case Needs::Page:
    return situation.hasPage;
  case Needs::Window:
    return situation.windows > 0;
  case Needs::TwoWindows:
    return situation.windows > 1;
  case Needs::Document:
    return situation.hasDocument;
  case Needs::NoRun:
    return !situation.isRunning;
  case Needs::Run:
    return situation.isRunning;
  case Needs::Undoable:
    return !situation.undoName.isEmpty();
  case Needs::Redoable:
    return !situation.redoName.isEmpty();
  case Needs::Nothing:
    break;
  }
  return true;
}

} // namespace

HostActions::HostActions(QObject* parent) : QObject(parent) {
  for (const ActionRow& row : rows) {
    auto* action = new QAction(this);
    action->setObjectName(row.name);
    action->setShortcut(QKeySequence(row.shortcut));
    if (*row.icon)
      action->setIcon(QIcon(QString(":/desktop/images/%1.png").arg(row.icon)));
    action->setCheckable(row.isCheckable);
    action->setMenuRole(menuRole(row.command));
    actions_[row.command] = action;
  }
  // A wizard that stays open beside the main window works on the same project.
  for (const Command command : {Command::Undo, Command::Redo})
    actions_[command]->setShortcutContext(Qt::ApplicationShortcut);
  enableFor({});
  retranslate();
}

std::vector<QAction*> HostActions::of(MenuId menu) const {
  std::vector<QAction*> actions;
  for (const ActionRow& row : rows) {
    if (row.menu != menu)
      continue;
    if (row.startsGroup)
      actions.push_back(nullptr);
    actions.push_back(actions_.at(row.command));
  }
  return actions;
}

void HostActions::enableFor(const Situation& situation) {
  for (const ActionRow& row : rows)
    actions_.at(row.command)->setEnabled(isMet(row.needs, situation));
  undoName_ = situation.undoName;
  redoName_ = situation.redoName;
  nameSteps();
}

void HostActions::nameSteps() {
  const auto name = [this](Command command, const char* text, const char* withName, QString step) {
    actions_.at(command)->setText(
        step.isEmpty()
            ? QCoreApplication::translate(context, text)
            : QCoreApplication::translate(context, withName).arg(step.replace('&', "&&")));
  };
  name(Command::Undo, "&Undo", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Undo: %1"),
       undoName_);
  name(Command::Redo, "&Redo", QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", "&Redo: %1"),
       redoName_);
}

void HostActions::retranslate() {
  for (const ActionRow& row : rows) {
    QAction* const action = actions_.at(row.command);
    action->setText(QCoreApplication::translate(context, row.text));
    action->setStatusTip(QCoreApplication::translate(context, row.tip));
  }
  nameSteps();
}

} // namespace TVR::Desktop
