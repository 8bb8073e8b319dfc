#include "study/Options.h"

#include "terminal/ExitCodes.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <iterator>

namespace TVR::Study {

namespace {

struct CommandRow {
  const char* name;
  const char* words; ///< that it expects
  const char* help;
  const char* options; ///< that it takes, beside those that all take
  int least;           ///< number of words
  int most;
};

constexpr int any = 1'000'000;

constexpr CommandRow commandRows[] = {
    {"template", "FILE", "write a commented study to FILE", "", 1, 1},
    {"check", "STUDY", "say what is wrong with a study; compute nothing", "", 1, 1},
    {"plan", "STUDY", "say how many runs it has and how long they take", "workers table", 1, 1},
    {"run", "STUDY", "compute what is not computed yet, and write the table",
     "folder json shard workers retry-failed", 1, 1},
    {"submit", "STUDY", "have it computed in shards, by Slurm or by GNU parallel",
     "folder json workers retry-failed slurm parallel hosts program shards", 1, 1},
    {"collect", "STUDY [FOLDER...]", "take over what other folders hold, and write the table",
     "folder json", 1, any},
    {"status", "STUDY [FOLDER...]", "say how far a study has come, in its folder and in others",
     "folder shards", 1, any},
    {"page", "STUDY", "draw what is there to --page, and write plume bands to --shapefile",
     "folder page shapefile language", 1, 1},
    {"pest", "STUDY OBSERVATIONS", "write what programs like PEST calibrate its base with",
     "folder", 2, 2},
    {"observe", "FILE OBSERVATIONS RESULT", "run a batch file and write what it answers to them",
     "", 3, 3},
    {"worker", nullptr, nullptr, "", 0, 0}, // of the program's own processes
};

/// The row of a command; null for a name that is none.
const CommandRow* commandRow(const QString& name) {
  const auto* const found = std::find_if(std::begin(commandRows), std::end(commandRows),
                                         [&](const CommandRow& row) { return name == row.name; });
  return found == std::end(commandRows) ? nullptr : found;
}

/// " [--folder --json]" for "folder json".
QString namesIn(const QString& options) {
  return options.isEmpty() ? QString() : " [--" + QString(options).replace(" ", " --") + ']';
}

QString description() {
  QString commands;
  for (const CommandRow& row : commandRows)
    if (row.help)
      commands += QStringLiteral("  %1 %2%4\n      %3\n")
                      .arg(QString(row.name), row.words, row.help, namesIn(row.options));
  return QStringLiteral(
             "Computes many variants of a site: a study says which numbers of a batch file or "
             "project file are uncertain, and how; the answer is a table of all runs.\n\n"
             "Commands:\n%1\n"
             "Example:\n"
             "  tevrane-study template doublet.tstudy\n"
             "  tevrane-study run doublet.tstudy\n\n"
             "A run that was stopped goes on where it was. Exit codes: 0 all went well, 1 runs "
             "failed or are missing, or a result could not be written, 2 the command line or a "
             "file is at fault, 130 and 143 the run was stopped by SIGINT or SIGTERM.")
      .arg(commands);
}

std::optional<Shard> shardFrom(const QString& text) {
  static const QRegularExpression form("^([0-9]{1,9})/([0-9]{1,9})$");
  const QRegularExpressionMatch match = form.match(text);
  const auto number = match.captured(1).toULongLong();
  const auto count = match.captured(2).toULongLong();
  if (number < 1 || number > count)
    return {};
  return Shard{static_cast<std::size_t>(number) - 1, static_cast<std::size_t>(count)};
}

/// What is wrong with what the page command is asked for, or nothing.
QString pageFault(const Options& options) {
  if (options.command == "page" && options.pages.isEmpty() && options.shapefile.isEmpty())
    return QStringLiteral("page expects --page FILE or --shapefile NAME");
  for (const QString& file : options.pages)
    if (const QString ending = QFileInfo(file).suffix().toLower();
        ending != "pdf" && ending != "png" && ending != "svg")
      return QStringLiteral("--page expects a file that ends with .pdf, .png or .svg, found \"%1\"")
          .arg(file);
  return {};
}

/// The options that there are, and what they say once `parser` has read a command line.
struct CommandLine {
  CommandLine() {
    parser.setApplicationDescription(description());
    parser.addOptions(ofSomeCommands() + QList<QCommandLineOption>{quiet});
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("COMMAND", "What to do; see above.");
    parser.addPositionalArgument("FILE", "A study (.tstudy).", "FILE...");
  }

  /// Fills the options in; returns what is wrong, or nothing.
  QString read(Options& options) const {
    QStringList words = parser.positionalArguments();
    options.command = words.isEmpty() ? QString() : words.takeFirst();
    const CommandRow* const row = commandRow(options.command);
    if (!row)
      return QStringLiteral("a command is expected");
    if (words.size() < row->least || words.size() > row->most)
      return QStringLiteral("%1 expects %2").arg(options.command, row->words);
    if (QString fault = strayOption(*row); !fault.isEmpty())
      return fault;
    options.file = words.value(0);
    options.more = words.mid(1);
    options.folder = parser.value(folder);
    options.json = parser.value(json);
    options.table = parser.value(table);
    options.pages = parser.values(page);
    options.shapefile = parser.value(shapefile);
    options.language = parser.value(language);
    if (!QStringList{"de", "en", "fr"}.contains(options.language))
      return QStringLiteral("--language expects de, en or fr");
    if (QString fault = pageFault(options); !fault.isEmpty())
      return fault;
    const bool isOneCore = options.command == "submit" && !parser.isSet(workers);
    options.workers = isOneCore ? 1 : parser.value(workers).toInt();
    if (options.workers < 1 || options.workers > 1000)
      return QStringLiteral("--workers expects a number from 1 to 1000");
    const std::optional<Shard> share = shardFrom(parser.value(shard));
    if (!share)
      return QStringLiteral("--shard expects I/N, with I from 1 to N");
    options.shard = *share;
    if (parser.isSet(retryFailed))
      options.failed = FailedRuns::AreRetried;
    if (share->count > 1 && parser.isSet(json))
      return QStringLiteral("--json expects a whole study; collect writes the summary of shards");
    if (QString fault = submit.read(parser, options.command, options.submit); !fault.isEmpty())
      return fault;
    if (parser.isSet(quiet))
      options.talk = Talk::Quiet;
    return {};
  }

  /// The options that some commands take and others do not.
  QList<QCommandLineOption> ofSomeCommands() const {
    return QList<QCommandLineOption>{folder,      json, table,     shard,   workers,
                                     retryFailed, page, shapefile, language} +
           submit.all();
  }

  /// What the command line says of an option that the command has no use for, or nothing.
  QString strayOption(const CommandRow& row) const {
    const QStringList taken = QString(row.options).split(' ');
    for (const QCommandLineOption& option : ofSomeCommands())
      if (const QString name = option.names().last(); parser.isSet(option) && !taken.contains(name))
        return QStringLiteral("%1 does not take --%2").arg(row.name, name);
    return {};
  }

  const QCommandLineOption folder{
      "folder", "Keep results in <FOLDER>; else in NAME.study beside NAME.tstudy.", "FOLDER"};
  const QCommandLineOption json{
      "json", "Write the summary of a study whose runs are all there to <FILE> too.", "FILE"};
  const QCommandLineOption table{
      "table", "Write the values of all runs of a plan to <FILE>, a CSV table of keys.", "FILE"};
  const QCommandLineOption shard{"shard", "Compute the <I>-th of N shares of the runs.", "I/N",
                                 "1/1"};
  const QCommandLineOption workers{{"j", "workers"},
                                   "Compute <N> runs at a time (default: one for each core; "
                                   "submit: 1 in each shard).",
                                   "N",
                                   QString::number(QThread::idealThreadCount())};
  const QCommandLineOption retryFailed{"retry-failed",
                                       "Compute the runs that have failed once more, too."};
  const QCommandLineOption page{
      "page", "Draw the page of the study to <FILE>: .pdf, .png or .svg; may be repeated.", "FILE"};
  const QCommandLineOption shapefile{
      "shapefile", "Write the plume bands as polygons to the shapefile <NAME>.", "NAME"};
  const QCommandLineOption language{"language", "Language of the page: de, en or fr.", "NAME",
                                    "en"};
  const QCommandLineOption quiet{{"q", "quiet"}, "Say nothing but errors."};
  const SubmitOptions submit;
  QCommandLineParser parser;
};

} // namespace

std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode) {
  CommandLine line;
  QCommandLineParser& parser = line.parser;
  QString fault;
  Options options;
  exitCode = Success;
  if (!parser.parse(arguments))
    fault = parser.errorText();
  else if (parser.isSet("help"))
    printText(parser.helpText().trimmed());
  else if (parser.isSet("version"))
    printLine(QStringLiteral("tevrane-study %1").arg(TEVRANE_VERSION));
  else if (fault = line.read(options); fault.isEmpty())
    return options;
  if (!fault.isEmpty()) {
    printMessage({}, fault + " (see --help)");
    exitCode = InputError;
  }
  return std::nullopt;
}

} // namespace TVR::Study
