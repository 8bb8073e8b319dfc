#include "plugin/LanguageCommands.h"

#include "design/ParameterId.h"
#include "messages/Translators.h"
#include "plugin/AppInterface.h"
#include "plugin/Languages.h"
#include "plugin/MainWindowParts.h"
#include "store/Manager.h"
#include "store/UserStep.h"

namespace TVR {

namespace {

void tellHost(const QString& language) {
  if (AppInterface::instance())
    AppInterface::instance()->setHostLanguage(language);
}

} // namespace

LanguageCommands::~LanguageCommands() {
  removeTranslators(translators_);
}

QString LanguageCommands::language() const {
  return store_.value(Parameter::GuiLanguage).toString();
}

void LanguageCommands::set(const QString& locale, bool force) {
  if (!force && locale == language())
    return;
  tellHost(locale);
  removeTranslators(translators_);
  translators_ = installTranslators(locale);
  const QString used = locale == "de" || locale == "fr" ? locale : QStringLiteral("en");
  {
    const Data::ProgramWork work(store_);
    store_.setValue(Parameter::GuiLanguage, used);
  }
  parts_.checkLanguage(locale);
  tellHost(used);
}

void LanguageCommands::choose(const QString& language) {
  set(language, true);
  keepLanguage(language);
}

} // namespace TVR
