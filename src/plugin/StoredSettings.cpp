#include "plugin/StoredSettings.h"

#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "project/UserSettings.h"

namespace TVR {

void clearStoredSettings() {
  const auto mayClear = [](const QString& question) {
    return userSaysYes(Severity::Warning, programTitle, question);
  };
  if (mayClear(PluginText::tr("All stored settings will be removed.\nDo you want to go on?")))
    userSettings().clear();

  QSettings former = formerUserSettings();
  former.setFallbacksEnabled(false); // only what can be cleared counts
  if (!former.allKeys().isEmpty() &&
      mayClear(PluginText::tr("All stored settings of the previous program generation will be "
                              "removed.\nDo you want to go on?")))
    former.clear();
}

} // namespace TVR
