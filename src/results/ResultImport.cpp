#include "results/ResultImport.h"

#include "host/ApplicationInterface.h"
#include "messages/UserMessages.h"
#include "results/FileDialogs.h"
#include "xml/GuardedXml.h"

#include <QDomDocument>
#include <QFile>

namespace TVR {

using namespace Sketra_lib;

namespace {

constexpr double firstVersionWithResults = 1.2;
constexpr int versionLength = 3;

} // namespace

ImportedResults resultsOf(const QDomDocument& project, const QString& fileName) {
  const QDomElement root = project.documentElement();
  ImportedResults results;
  results.label = ResultImport::tr("File: %1").arg(fileName.section('/', -1));

  double version = 0;
  const QDomElement application = root.firstChildElement("__application_version");
  if (!application.isNull()) {
    version = application.firstChildElement("__version").text().left(versionLength).toDouble();
    // One name, with the slash in it: no element of a file is called so, and the label stays.
    const QDomElement name = root.firstChildElement("__parameter_set/name");
    if (!name.isNull())
      results.label = ResultImport::tr("Project: %1").arg(name.text());
  }

  const QDomElement graphic = root.firstChildElement("__graphic");
  results.hasResults = !graphic.isNull() && version >= firstVersionWithResults;
  if (!results.hasResults)
    return results;
  results.pageVersion = graphic.firstChildElement("CanvasEx").attribute("Version").toDouble();
  const QDomNodeList items = graphic.elementsByTagName("Item");
  for (int i = 0; i < items.size(); ++i) {
    const QDomElement item = items.at(i).toElement();
    if (item.attribute("Type") == "GraphicsGridDataItem")
      results.grids.append(item);
  }
  return results;
}

bool ResultImport::refuse(const QString& reason) const {
  tellUser(Severity::Information, host_ ? host_->applicationName() : programTitle, reason);
  return false;
}

bool ResultImport::ask() const {
  if (!page_.window || page_.items.mapView < 1)
    return refuse(tr("There is no active graphic.\nThere are no data to import."));
  const QString fileName = fileToOpen(host_, tr("Import results from TVR project file"),
                                      tr("TVR project files (*.tvr)"));
  return !fileName.isEmpty() && read(fileName);
}

bool ResultImport::read(const QString& fileName) const {
  if (!QFile(fileName).open(QIODevice::ReadOnly))
    return refuse(tr("The file could not open.\nThere are no data to import."));
  QDomDocument project;
  if (!readGuarded(fileName, project))
    return refuse(tr("This is not a valid xml file.\nThere are no data to import."));

  const ImportedResults results = resultsOf(project, fileName);
  if (!results.hasResults)
    return refuse(tr("The version of result file supports not the saving of results.\n"
                     "There are no data to import."));
  for (const QDomElement& grid : results.grids) {
    const int item = page_.window->importItem(page_.items.mapView, grid, results.pageVersion);
    if (item > 0)
      page_.window->setItemProperty(item, Property::Name, results.label);
  }
  return !results.grids.isEmpty();
}

} // namespace TVR
