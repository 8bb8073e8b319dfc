#include "desktop/HostActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>

#include <iterator>

namespace TVR::Desktop {

namespace {

constexpr char context[] = "TVR::Desktop::HostActions";

enum class Needs { Nothing, Page, Window, TwoWindows, Document, NoRun, Run };

struct ActionRow {
  Command command;
  MenuId menu;
  const char* name; ///< of the object
  const char* text;
  const char* tip;
  const char* shortcut;
  const char* icon; ///< in the theme of the desktop
  Needs needs;
  bool startsGroup = false; ///< a separator stands before it
  bool isCheckable = false;
};

#define TEXT(text) QT_TRANSLATE_NOOP("TVR::Desktop::HostActions", text)

constexpr ActionRow rows[] = {
    {Command::Save, MenuId::File, "save", TEXT("Sa&ve"),
     TEXT("Saves the project to the file that it was opened from"), "Ctrl+S", "document-save",
     Needs::Document},
    {Command::ExportPdf, MenuId::Export, "export_pdf", TEXT("Page as &PDF..."),
     TEXT("Writes the page to a PDF file, at its size"), "", "application-pdf", Needs::Page},
    {Command::ExportPng, MenuId::Export, "export_png", TEXT("Page as P&NG..."),
     TEXT("Writes the page to a picture of pixels"), "", "image-x-generic", Needs::Page},
    {Command::ExportSvg, MenuId::Export, "export_svg", TEXT("Page as &SVG..."),
     TEXT("Writes the page to a picture of lines"), "", "image-x-generic", Needs::Page},
    {Command::ExportIsolines, MenuId::Export, "export_isolines", TEXT("&Isolines as DXF..."),
     TEXT("Writes the isolines of the page to a DXF file"), "", "", Needs::Page, true},
    {Command::ExportDrawing, MenuId::Export, "export_drawing", TEXT("&Drawing as DXF..."),
     TEXT("Writes wells, isolines and texts of the map to a drawing for CAD programs"), "", "",
     Needs::Page},
    {Command::PageSetup, MenuId::File, "page_setup", TEXT("Page Set-&up..."),
     TEXT("Chooses the paper that pages are printed on"), "", "document-page-setup", Needs::Page,
     true},
    {Command::PrintPreview, MenuId::File, "print_preview", TEXT("Print Previe&w..."),
     TEXT("Shows the page as it will be printed"), "", "document-print-preview", Needs::Page},
    {Command::Print, MenuId::File, "print", TEXT("Pr&int..."), TEXT("Prints the page"), "Ctrl+P",
     "document-print", Needs::Page},
    {Command::CloseWindow, MenuId::File, "close_window", TEXT("&Close Window"),
     TEXT("Closes the active window of the workspace"), "Ctrl+W", "window-close", Needs::Window,
     true},
    {Command::Quit, MenuId::File, "quit", TEXT("&Quit"), TEXT("Ends the program"), "Ctrl+Q",
     "application-exit", Needs::Nothing},
    {Command::CopyPage, MenuId::Edit, "copy_page", TEXT("&Copy Page as Picture"),
     TEXT("Copies the page to the clipboard"), "Ctrl+Shift+C", "edit-copy", Needs::Page},
    {Command::ZoomIn, MenuId::View, "zoom_in", TEXT("Zoom &In"), TEXT("Shows the page larger"),
     "Ctrl++", "zoom-in", Needs::Page},
    {Command::ZoomOut, MenuId::View, "zoom_out", TEXT("Zoom &Out"), TEXT("Shows the page smaller"),
     "Ctrl+-", "zoom-out", Needs::Page},
    {Command::WholePage, MenuId::View, "whole_page", TEXT("&Whole Page"),
     TEXT("Shows the whole page in its window"), "Ctrl+0", "zoom-fit-best", Needs::Page},
    {Command::PageWidth, MenuId::View, "page_width", TEXT("Page Wi&dth"),
     TEXT("Shows the page as wide as its window"), "Ctrl+2", "zoom-fit-width", Needs::Page},
    {Command::ActualSize, MenuId::View, "actual_size", TEXT("&100 %"),
     TEXT("Shows the page as large as on paper"), "Ctrl+1", "zoom-original", Needs::Page},
    {Command::ToolBar, MenuId::View, "tool_bar", TEXT("&Tool Bar"),
     TEXT("Shows or hides the tool bar"), "", "", Needs::Nothing, true, true},
    {Command::Dock, MenuId::View, "dock", TEXT("&Project Data"),
     TEXT("Shows or hides the window with the data of the project"), "", "", Needs::Nothing, false,
     true},
    {Command::FullScreen, MenuId::View, "full_screen", TEXT("&Full Screen"),
     TEXT("Fills the screen with the program"), "F11", "view-fullscreen", Needs::Nothing, true,
     true},
    {Command::Run, MenuId::Plugin, "run", TEXT("&Run Simulation"),
     TEXT("Computes drawdown and temperatures of the project"), "Ctrl+R", "media-playback-start",
     Needs::NoRun, true},
    {Command::CancelRun, MenuId::Plugin, "cancel_run", TEXT("&Cancel Simulation"),
     TEXT("Ends the simulation at its next step"), "", "media-playback-stop", Needs::Run},
    {Command::NextWindow, MenuId::Window, "next_window", TEXT("&Next Window"),
     TEXT("Goes to the next window of the workspace"), "Ctrl+Tab", "go-next", Needs::TwoWindows},
    {Command::PreviousWindow, MenuId::Window, "previous_window", TEXT("&Previous Window"),
     TEXT("Goes to the previous window of the workspace"), "Ctrl+Shift+Tab", "go-previous",
     Needs::TwoWindows},
    {Command::Guide, MenuId::Help, "guide", TEXT("User &Guide"), TEXT("Opens the user guide"), "F1",
     "help-contents", Needs::Nothing},
    {Command::ReportProblem, MenuId::Help, "report_problem", TEXT("&Report a Problem..."),
     TEXT("Shows what a report of a problem should hold"), "", "", Needs::Nothing},
    {Command::About, MenuId::Help, "about", TEXT("&About Tevrane"),
     TEXT("Shows version and copyright"), "", "help-about", Needs::Nothing, true},
    {Command::AboutQt, MenuId::Help, "about_qt", TEXT("About &Qt"),
     TEXT("Shows the version of the library of the windows"), "", "", Needs::Nothing},
};

#undef TEXT

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
    action->setIcon(QIcon::fromTheme(row.icon));
    action->setCheckable(row.isCheckable);
    action->setMenuRole(menuRole(row.command));
    actions_[row.command] = action;
  }
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
}

void HostActions::retranslate() {
  for (const ActionRow& row : rows) {
    QAction* const action = actions_.at(row.command);
    action->setText(QCoreApplication::translate(context, row.text));
    action->setStatusTip(QCoreApplication::translate(context, row.tip));
  }
}

} // namespace TVR::Desktop
