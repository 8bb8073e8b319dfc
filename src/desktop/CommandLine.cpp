#include "desktop/CommandLine.h"

#include "messages/UserMessages.h"

#include <QCommandLineParser>

namespace TVR::Desktop {

CommandLine CommandLine::parse(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(tr("Planning of the thermal use of groundwater"));
  parser.addPositionalArgument(
      "FILE", tr("Project (.tvr) or batch file (.tbat) to open; the first of several."),
      "[FILE...]");
  const QCommandLineOption language("language", tr("Language of use: de, en or fr."), "LANGUAGE");
  QCommandLineOption quits("quit-when-ready");
  quits.setFlags(QCommandLineOption::HiddenFromHelp);
  parser.addOptions({language, quits});
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption version = parser.addVersionOption();

  CommandLine line;
  if (!parser.parse(arguments)) {
    line.fault = parser.errorText();
    return line;
  }
  line.files = parser.positionalArguments();
  line.language = parser.value(language);
  line.quitsWhenReady = parser.isSet(quits);
  if (parser.isSet(help))
    line.answer = parser.helpText();
  else if (parser.isSet(version))
    line.answer = QStringLiteral("%1 %2\n").arg(programTitle, TEVRANE_VERSION);
  else if (parser.isSet(language) && !QStringList{"de", "en", "fr"}.contains(line.language))
    line.fault = tr("There is no language %1; there are de, en and fr.").arg(line.language);
  return line;
}

} // namespace TVR::Desktop
