#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QPointer>
#include <QString>

#include <array>

class QActionGroup;
class QObject;

namespace TVR {

/// The commands of the plug-in. The first ones, up to `Stop`, make up its list of actions.
enum class Command {
  Welcome,
  New,
  Open,
  Save,
  English,
  German,
  French,
  General,
  Energy,
  Wells,
  Mapping,
  Simulation,
  Stop,
  ImportResults,
  ExportShapefile,
  ClearRegistry,
  Count
};

/// The actions of the plug-in and its menu of languages. Needs a QApplication.
class PluginActions {
public:
  /// Makes the actions as children of `plugin`, whose slots they call; each has an object name of
  /// its own, such as "tvr_open". The three languages exclude each other.
  explicit PluginActions(QObject* plugin);
  ~PluginActions();
  PluginActions(const PluginActions&) = delete;
  PluginActions& operator=(const PluginActions&) = delete;

  QAction* operator[](Command command) const { return actions_[static_cast<std::size_t>(command)]; }
  /// The list of actions, in its order.
  QList<QAction*> list() const;
  /// The menu of the three languages; whoever gives it a parent owns it.
  QMenu* languageMenu() const { return languageMenu_; }

  /// Sets all texts in the language of the moment; that of the stop action is not translated.
  void retranslate();
  /// Checks the language that this locale name begins with; English for any other.
  void checkLanguage(const QString& language);

private:
  std::array<QAction*, static_cast<std::size_t>(Command::Count)> actions_{};
  QActionGroup* const languages_; ///< a child of the plug-in
  QPointer<QMenu> languageMenu_;
};

} // namespace TVR
