#include "plugin/PluginActions.h"

#include "messages/PluginText.h"

#include <QActionGroup>
#include <QIcon>
#include <QKeySequence>

namespace TVR {

namespace {

enum class Start { Enabled, Disabled, Checkable };

struct ActionRow {
  Command command;
  const char* name;
  const char* text;
  const char* statusTip; ///< empty for none
  const char* icon;      ///< a picture of the resources, empty for none
  QKeySequence shortcut;
  const char* slot;
  Start start = Start::Enabled;
};

QKeySequence alt(Qt::Key key) {
  return static_cast<int>(Qt::ALT) | key;
}

/// In the order of Command.
using Rows = std::array<ActionRow, static_cast<std::size_t>(Command::Count)>;

const Rows& rows() {
  static const Rows table{{
      {Command::Welcome, "tvr_welcome", QT_TRANSLATE_NOOP("TVRPlugin", "TVR Welcome Window"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Opens a new TVR welcome window"), "", QKeySequence(),
       SLOT(openWelcomeWindow())},
      {Command::New, "tvr_new", QT_TRANSLATE_NOOP("TVRPlugin", "&TVR Project"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Opens a new TVR project"), "tvr_new.png",
       QKeySequence(QKeySequence::New), SLOT(newOpen())},
      {Command::Open, "tvr_open", QT_TRANSLATE_NOOP("TVRPlugin", "Open TVR &Project"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Opens a TVR project"), "tvr_open.png", alt(Qt::Key_O),
       SLOT(load())},
      {Command::Save, "tvr_save", QT_TRANSLATE_NOOP("TVRPlugin", "Save the TVR project"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Saves a TVR project"), "tvr_save.png", alt(Qt::Key_S),
       SLOT(save())},
      {Command::English, "tvr_english", QT_TRANSLATE_NOOP("TVRPlugin", "English"), "", "",
       QKeySequence(), SLOT(setEnglish()), Start::Checkable},
      {Command::German, "tvr_german", QT_TRANSLATE_NOOP("TVRPlugin", "German"), "", "",
       QKeySequence(), SLOT(setGerman()), Start::Checkable},
      {Command::French, "tvr_french", QT_TRANSLATE_NOOP("TVRPlugin", "French"), "", "",
       QKeySequence(), SLOT(setFrench()), Start::Checkable},
      {Command::General, "tvr_general",
       QT_TRANSLATE_NOOP("TVRPlugin", "&General Project Information"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Shows the general property wizard"), "tvr_generall.png",
       QKeySequence(Qt::Key_F5), SLOT(showGeneralWizard())},
      {Command::Energy, "tvr_energy", QT_TRANSLATE_NOOP("TVRPlugin", "&Energy Demand"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Shows the energy demand wizard"), "tvr_energy.png",
       QKeySequence(Qt::Key_F6), SLOT(showEnergieWizard())},
      {Command::Wells, "tvr_wells", QT_TRANSLATE_NOOP("TVRPlugin", "&Wells and aquifer"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Shows the well design wizard"), "tvr_borehole.png",
       QKeySequence(Qt::Key_F7), SLOT(showWellWizard())},
      {Command::Mapping, "tvr_mapping", QT_TRANSLATE_NOOP("TVRPlugin", "&Mapping"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Shows the mapping wizard"), "tvr_graphic.png",
       QKeySequence(Qt::Key_F8), SLOT(showGraphicWizard())},
      {Command::Simulation, "tvr_simulation", QT_TRANSLATE_NOOP("TVRPlugin", "&Simulation"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Shows the simulation wizard"), "tvr_newgraphics.png",
       QKeySequence(Qt::Key_F9), SLOT(showSimulationWizard())},
      {Command::Stop, "tvr_stop", "stop simulation", "", "", QKeySequence(Qt::Key_Escape),
       SLOT(cancelSimulation())},
      {Command::ImportResults, "tvr_import_results",
       QT_TRANSLATE_NOOP("TVRPlugin", "Import results of TVR project"),
       QT_TRANSLATE_NOOP("TVRPlugin",
                         "Import the results of a TVR project and show them on current graphic."),
       "", QKeySequence(), SLOT(importTVRResult()), Start::Disabled},
      {Command::ExportShapefile, "tvr_export_shapefile",
       QT_TRANSLATE_NOOP("TVRPlugin", "Export to &Shapefile"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Exports the isolines to a shapefile"), "", QKeySequence(),
       SLOT(shapefileExport()), Start::Disabled},
      {Command::ClearRegistry, "tvr_clear_registry",
       QT_TRANSLATE_NOOP("TVRPlugin", "&Clear registry entries"),
       QT_TRANSLATE_NOOP("TVRPlugin", "Clears all settings that are stored for you"), "",
       QKeySequence(), SLOT(clearRegistry())},
  }};
  return table;
}

QString languageMenuTitle() {
  return PluginText::tr("&Language of use");
}

void setTexts(QAction& action, const ActionRow& row) {
  if (row.command == Command::Stop)
    return action.setText(row.text); // Required oddity: it is not translated
  action.setText(PluginText::tr(row.text));
  if (*row.statusTip != '\0')
    action.setStatusTip(PluginText::tr(row.statusTip));
}

} // namespace

PluginActions::PluginActions(QObject* plugin)
    : languages_(new QActionGroup(plugin)), languageMenu_(new QMenu(languageMenuTitle())) {
  languageMenu_->setObjectName("menu_language");
  for (const ActionRow& row : rows()) {
    auto* const action = new QAction(plugin);
    action->setObjectName(row.name);
    setTexts(*action, row);
    if (*row.icon != '\0')
      action->setIcon(QIcon(QStringLiteral(":/TVR/images/") + row.icon));
    action->setShortcut(row.shortcut);
    action->setEnabled(row.start != Start::Disabled);
    if (row.start == Start::Checkable) {
      action->setCheckable(true);
      languages_->addAction(action);
      languageMenu_->addAction(action);
    }
    QObject::connect(action, SIGNAL(triggered()), plugin, row.slot);
    actions_.at(static_cast<std::size_t>(row.command)) = action;
  }
}

PluginActions::~PluginActions() {
  if (languageMenu_ && !languageMenu_->parent())
    delete languageMenu_;
}

QList<QAction*> PluginActions::list() const {
  return QList<QAction*>(actions_.begin(),
                         actions_.begin() + static_cast<std::ptrdiff_t>(Command::Stop) + 1);
}

void PluginActions::retranslate() {
  for (const ActionRow& row : rows())
    setTexts(*(*this)[row.command], row);
  if (languageMenu_)
    languageMenu_->setTitle(languageMenuTitle());
}

void PluginActions::checkLanguage(const QString& language) {
  const Command command = language.startsWith("fr")   ? Command::French
                          : language.startsWith("de") ? Command::German
                                                      : Command::English;
  (*this)[command]->setChecked(true);
}

} // namespace TVR
