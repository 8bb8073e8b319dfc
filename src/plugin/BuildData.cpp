#include "plugin/BuildData.h"

#include "files/BuildTime.h"
#include "project/ProgramVersion.h"

#include <QCoreApplication>

#include <sundials/sundials_config.h>

namespace TVR {

std::vector<BuiltPart> builtParts() {
  const QString version = versionLabel(TEVRANE_VERSION);
  const QString revision = TEVRANE_REVISION;
  const QString notOurs = "-";
  return {
      {QT_TRANSLATE_NOOP("TVRPlugin", " TVR plugin:"), version, revision, buildTime()},
      {QT_TRANSLATE_NOOP("TVRPlugin", " Static simulator library:"), version, revision,
       buildTime()},
      {QT_TRANSLATE_NOOP("TVRPlugin", " Static sundials library:"), SUNDIALS_VERSION, notOurs,
       buildTime()},
      {QT_TRANSLATE_NOOP("TVRPlugin", " Qt library:"), qVersion(), notOurs, buildTime()},
  };
}

} // namespace TVR
