#include "plugin/PluginActions.h"

#include "messages/PluginText.h"

#include <QAction>
#include <QActionGroup>

namespace TVR {

namespace {

struct ActionRow {
  const char* name;
  const char* text;
  const char* statusTip;
  const char* slot;
  bool isEnabled = true;
  bool isLanguage = false;
};

constexpr ActionRow rows[] = {
    {ActionName::importResults, QT_TRANSLATE_NOOP("TVRPlugin", "Import results of TVR project"),
     QT_TRANSLATE_NOOP("TVRPlugin",
                       "Import the results of a TVR project and show them on current graphic."),
     SLOT(importTVRResult()), false},
    {ActionName::exportShapefile, QT_TRANSLATE_NOOP("TVRPlugin", "Export to &Shapefile"),
     QT_TRANSLATE_NOOP("TVRPlugin", "Exports the isolines to a shapefile"), SLOT(shapefileExport()),
     false},
    {ActionName::english, QT_TRANSLATE_NOOP("TVRPlugin", "English"), "", SLOT(setEnglish()), true,
     true},
    {ActionName::french, QT_TRANSLATE_NOOP("TVRPlugin", "French"), "", SLOT(setFrench()), true,
     true},
    {ActionName::german, QT_TRANSLATE_NOOP("TVRPlugin", "German"), "", SLOT(setGerman()), true,
     true},
};

} // namespace

void createActions(QObject* plugin) {
  auto* languages = new QActionGroup(plugin);
  for (const ActionRow& row : rows) {
    auto* action = new QAction(PluginText::tr(row.text), plugin);
    action->setObjectName(row.name);
    if (*row.statusTip != '\0')
      action->setStatusTip(PluginText::tr(row.statusTip));
    action->setEnabled(row.isEnabled);
    action->setCheckable(row.isLanguage);
    if (row.isLanguage)
      languages->addAction(action);
    QObject::connect(action, SIGNAL(triggered()), plugin, row.slot);
  }
}

void checkLanguageAction(const QObject* plugin, const QString& language) {
  const char* name = language.startsWith("fr")   ? ActionName::french
                     : language.startsWith("de") ? ActionName::german
                                                 : ActionName::english;
  if (auto* action = plugin->findChild<QAction*>(name))
    action->setChecked(true);
}

} // namespace TVR
