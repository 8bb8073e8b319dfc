#include "batch/Options.h"

#include "inspection/FileInspection.h"
#include "results/ShapefileSet.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace TVR::Batch {

namespace {

constexpr char description[] =
    "Simulates the thermal use of groundwater without a window: each batch file or project file "
    "becomes a table of well temperatures and, if asked for, a page with maps.\n\n"
    "Example:\n"
    "  tevrane-batch --template doublet.tbat\n"
    "  tevrane-batch --output doublet.xml doublet.tbat\n"
    "  tevrane-batch --jobs 2 site-a.tbat site-b.tbat\n"
    "  tevrane-batch --page doublet.pdf --save-project doublet.tvr doublet.tbat\n\n"
    "The table is a spreadsheet if its name ends in \".xml\", else tab-separated text. Exit codes: "
    "0 all went well, 1 a simulation failed or a result could not be written, 2 the command line "
    "or a file is at fault, 130 and 143 the run was stopped by SIGINT or SIGTERM.";

std::optional<Options> mistake(const QString& text, int& exitCode) {
  printMessage({}, text + " (see --help)");
  exitCode = InputError;
  return std::nullopt;
}

std::optional<Options> answered(const QString& text, int& exitCode) {
  printText(text);
  exitCode = Success;
  return std::nullopt;
}

/// What is wrong with the names of the page's files; empty if nothing is.
QString faultOf(const PageFiles& files) {
  static const QRegularExpression pageEnding("\\.(pdf|png|svg)$",
                                             QRegularExpression::CaseInsensitiveOption);
  if (files.pages.filter(pageEnding).size() != files.pages.size())
    return QStringLiteral("--page expects a name that ends in .pdf, .png or .svg");
  if (!files.project.isEmpty() && !isProjectFile(files.project))
    return QStringLiteral("--save-project expects a name that ends in .tvr");
  return {};
}

/// The options that there are, and what they say once `parser` has read a command line.
struct CommandLine {
  CommandLine() {
    parser.setApplicationDescription(description);
    parser.addOptions({output, report, page, shapefile, dxf, dxfText, project, pictures, jobs,
                       check, convergence, parameters, format, templateFile, language, solver,
                       quiet, verbose});
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("FILE", "Batch files (.tbat) or project files (.tvr).", "FILE...");
  }

  Options options() const {
    Options options;
    options.files = parser.positionalArguments();
    options.output = parser.value(output);
    options.templateFile = parser.value(templateFile);
    options.report = parser.value(report);
    options.pageFiles = {parser.values(page), parser.value(shapefile), parser.value(dxf),
                         parser.value(dxfText), parser.value(project)};
    options.jobs = parser.value(jobs).toInt(); // 0 if it is no number
    options.pictures = parser.isSet(pictures);
    options.checkOnly = parser.isSet(check);
    options.convergence = parser.isSet(convergence);
    options.printParameters = parser.isSet(parameters);
    options.asJson = parser.value(format) == "json";
    options.language = parser.value(language);
    if (parser.value(solver) == "reference")
      options.solver = LinearSolver::Reference;
    if (parser.isSet(quiet))
      options.talk = Talk::Quiet;
    else if (parser.isSet(verbose))
      options.talk = Talk::Verbose;
    return options;
  }

  /// What is wrong with these options, or does not go together; empty if nothing.
  QString faultIn(const Options& options) const {
    if (options.solver != LinearSolver::Reference && parser.value(solver) != "structured")
      return QStringLiteral("--solver expects structured or reference");
    if (!QStringList{"de", "en", "fr"}.contains(options.language))
      return QStringLiteral("--language expects de, en or fr");
    if (options.jobs < 1)
      return QStringLiteral("--jobs expects a number of 1 or above");
    if (!options.asJson && parser.value(format) != "table")
      return QStringLiteral("--format expects table or json");
    if (parser.isSet(output) && options.files.size() != 1)
      return QStringLiteral("--output goes with one batch file");
    if (parser.isSet(report) && (options.files.size() != 1 || options.printParameters))
      return QStringLiteral("--json goes with one file that is checked or run");
    const bool runs = !options.files.isEmpty() && !options.checkOnly && !options.printParameters;
    if (options.convergence && !runs)
      return QStringLiteral("--convergence goes with files that are run");
    if (!options.pageFiles.names().isEmpty() && options.files.size() != 1)
      return QStringLiteral(
          "--page, --shapefile, --dxf, --dxf-text and --save-project go with one file");
    if (const QString fault = faultOf(options.pageFiles); !fault.isEmpty())
      return fault;
    if (options.printParameters && options.files.size() > 1)
      return QStringLiteral("--print-parameters goes with one batch file or none");
    if (options.files.isEmpty() && options.templateFile.isEmpty() && !options.printParameters)
      return QStringLiteral("a batch file is expected");
    return {};
  }

  const QCommandLineOption output{
      {"o", "output"}, "Write the table to <FILE>; for one batch file.", "FILE"};
  const QCommandLineOption report{
      "json",
      "Write parameters, results, counts, warnings and errors to <FILE>, for other programs.",
      "FILE"};
  const QCommandLineOption jobs{{"j", "jobs"}, "Run up to <N> files at a time.", "N", "1"};
  const QCommandLineOption check{"check", "Read and check the files; simulate nothing."};
  const QCommandLineOption convergence{
      "convergence", "Run also on a coarser and a finer mesh and say how good the mesh is."};
  const QCommandLineOption parameters{
      "print-parameters",
      "List id, key, value, unit and range of all parameters, of a file or by default."};
  const QCommandLineOption format{"format", "Form of that list: table or json.", "FORM", "table"};
  const QCommandLineOption templateFile{
      "template", "Write a commented batch file of a well doublet to <FILE>.", "FILE"};
  const QCommandLineOption language{
      "language", "Language of the page and of wells without a name: de, en or fr.", "NAME", "en"};
  const QCommandLineOption solver{
      "solver", "Linear solver: structured, or reference, which is slow and for comparison.",
      "NAME", "structured"};
  const QCommandLineOption page{
      "page", "Write the result page to <FILE>: .pdf, .png or .svg; may be repeated.", "FILE"};
  const QCommandLineOption shapefile{"shapefile", "Write the isolines to the shapefile <NAME>.",
                                     "NAME"};
  const QCommandLineOption dxf{
      "dxf", "Write isolines and wells to <FILE>, a DXF of release 12 for CAD programs.", "FILE"};
  const QCommandLineOption dxfText{
      "dxf-text", "Write the isolines to <FILE>, the bare DXF text of former releases.", "FILE"};
  const QCommandLineOption project{
      "save-project", "Save the simulated project with its page to <FILE>.tvr.", "FILE.tvr"};
  const QCommandLineOption pictures{
      "pictures", "Put pictures on the page wherever they lie, not only those beside the file."};
  const QCommandLineOption quiet{{"q", "quiet"}, "Say nothing but errors."};
  const QCommandLineOption verbose{"verbose", "Show diagnostic lines too."};
  QCommandLineParser parser;
};

} // namespace

QStringList PageFiles::names() const {
  QStringList names = pages + QStringList{dxf, dxfText, project};
  if (!shapefile.isEmpty())
    names << shapefileNames(shapefile);
  names.removeAll({});
  return names;
}

std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode) {
  CommandLine line;
  QCommandLineParser& parser = line.parser;
  if (!parser.parse(arguments))
    return mistake(parser.errorText(), exitCode);
  if (parser.isSet("help"))
    return answered(parser.helpText().trimmed(), exitCode);
  if (parser.isSet("version"))
    return answered(QStringLiteral("tevrane-batch %1").arg(TEVRANE_VERSION), exitCode);

  const Options options = line.options();
  if (const QString fault = line.faultIn(options); !fault.isEmpty())
    return mistake(fault, exitCode);
  return options;
}

} // namespace TVR::Batch
