#include "files/ProjectFile.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "disk/FileReplacement.h"
#include "files/BuildTime.h"
#include "files/EntityEncoding.h"
#include "files/FileTables.h"
#include "files/LegacyReader.h"
#include "files/StoredValues.h"
#include "project/ParameterTable.h"
#include "project/ProjectLimits.h"
#include "project/ProjectTarget.h"
#include "xml/GuardedXml.h"
#include "xml/XmlBytes.h"

#include <QDomDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Data::ProjectFile {

using namespace Parameter;

namespace {

constexpr char header[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<?xml-stylesheet type=\"text/xsl\" href=\"testresults.xsl\" ?>\n";

// The frame of the results, below the root.
constexpr char resultFrame[] = "__result_frame";
constexpr char originX[] = "origin_x";
constexpr char originY[] = "origin_y";
constexpr char flowDirection[] = "flow_direction";
constexpr char regionalFlow[] = "regional_flow";
constexpr char cycleLength[] = "cycle_length";

QString exactText(double value) {
  return QString::number(value, 'g', std::numeric_limits<double>::max_digits10);
}

/// Whether the page has a grid of results among its items.
bool showsResults(const QMap<QString, int>& fieldIds) {
  return fieldIds.value("data_field_id") > 0;
}

/// A text as it stands in the file.
QString fileText(const QVariant& value) {
  return xmlText(encodeEntities(value.toString()));
}

/// Builds the document of a project.
class Writer {
public:
  Writer(const Project& project, const ParameterKeys& keys) : project_(project), keys_(keys) {}

  QDomDocument document(const MadeTables& tables, const std::optional<Page>& page) {
    QDomElement root = document_.createElement("TVR");
    document_.appendChild(root);
    QDomElement application = append(root, "__application_version");
    append(application, "__version", TEVRANE_VERSION);
    append(application, "__build", buildTime());
    QDomElement parameters = append(root, "__parameter_set");
    appendValues(parameters);
    for (const ProjectTable table :
         {ProjectTable::Well, ProjectTable::Demand, ProjectTable::WellDemand})
      if (table == ProjectTable::Well || isMade(tables, table))
        appendTable(parameters, table);
    if (page) {
      appendPage(root, page->document);
      appendFieldIds(parameters, page->fieldIds);
      if (showsResults(page->fieldIds) && page->frame)
        appendResultFrame(root, *page->frame);
    }
    return document_;
  }

private:
  QDomElement append(QDomElement& parent, const QString& tag, const QString& text = {}) {
    QDomElement element = document_.createElement(tag);
    if (!text.isEmpty())
      element.appendChild(document_.createTextNode(text));
    parent.appendChild(element);
    return element;
  }

  void appendValues(QDomElement& parameters) {
    const ParameterValues& values = project_.values;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
      QDomElement parameter = append(parameters, "parameter");
      append(parameter, "name", keys_.key(entry.key()));
      append(parameter, "value", fileText(*entry));
      append(parameter, "unit");
    }
  }

  void appendTable(QDomElement& parameters, ProjectTable kind) {
    const ProjectView project(project_);
    const FileTable& table = fileTable(kind);
    const int rows = rowsOf(project, kind);
    QDomElement parameter = append(parameters, "parameter");
    parameter.setAttribute("row", rows);
    parameter.setAttribute("column", table.columns - table.firstColumn);
    append(parameter, "name", table.name);
    for (int row = 0; row < rows; ++row) {
      for (int column = table.firstColumn; column < table.columns; ++column) {
        QDomElement cell = append(parameter, "value", fileText(cellOf(project, kind, row, column)));
        cell.setAttribute("row", row);
        cell.setAttribute("column", column);
        cell.setAttribute("unit", "");
      }
    }
  }

  void appendPage(QDomElement& root, const std::optional<QByteArray>& page) {
    if (!page)
      return;
    QDomElement graphic = append(root, "__graphic");
    QDomDocument contents;
    if (contents.setContent(*page, false))
      graphic.appendChild(document_.importNode(contents.documentElement(), true));
  }

  /// How the results on the page lie on the map, which the parameters need no longer tell.
  void appendResultFrame(QDomElement& root, const RunFrame& frame) {
    QDomElement element = append(root, resultFrame);
    append(element, originX, exactText(frame.origin.x()));
    append(element, originY, exactText(frame.origin.y()));
    append(element, flowDirection, exactText(frame.flowDirection));
    append(element, regionalFlow, frame.hasRegionalFlow ? "true" : "false");
    append(element, cycleLength, QString::number(frame.cycleLength));
  }

  void appendFieldIds(QDomElement& parameters, const QMap<QString, int>& fieldIds) {
    QDomElement ids = append(parameters, "graphic_ids");
    for (auto id = fieldIds.begin(); id != fieldIds.end(); ++id)
      append(ids, id.key(), QString::number(*id));
  }

  const Project& project_;
  const ParameterKeys& keys_;
  QDomDocument document_;
};

double versionOf(const QDomElement& root) {
  return root.firstChildElement("__application_version")
      .firstChildElement("__version")
      .text()
      .left(3)
      .toDouble();
}

QString nameOf(const QDomElement& element) {
  return element.firstChildElement("name").text();
}

bool isNamed(const QString& name, int id) {
  return name == parameterRow(id).key;
}

/// Brings the elements of a file into a project.
class Reader {
public:
  Reader(const QDomElement& root, ProjectTarget& project)
      : root_(root), project_(project), version_(versionOf(root)) {}

  /// False, and nothing read, if the file asks for too much.
  bool read(QMap<QString, int>& fieldIds) {
    const QDomElement parameters = root_.firstChildElement("__parameter_set");
    if (sizesTooOften(parameters) || !excess(root_).isEmpty() ||
        (parameters.isNull() && !LegacyReader::read(root_, version_, project_)))
      return false;
    for (QDomElement element = parameters.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement())
      readParameter(element);
    if (version_ < firstVersionWithSignedRates)
      giveWithdrawalWellsNegativeRates();
    handOverPage();
    const QDomElement ids = parameters.firstChildElement("graphic_ids");
    for (QDomElement id = ids.firstChildElement(); !id.isNull(); id = id.nextSiblingElement())
      fieldIds[id.tagName()] = id.text().toInt();
    if (showsResults(fieldIds))
      readResultFrame();
    return true;
  }

private:
  bool sizesTooOften(const QDomElement& parameters) const {
    int sizings = 0;
    for (QDomElement element = parameters.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement())
      if (const QString name = nameOf(element); fileTable(name) || isNamed(name, NumberOfWells))
        ++sizings;
    return sizings > maxSizings;
  }

  void readParameter(const QDomElement& element) {
    const QString name = nameOf(element);
    if (const FileTable* table = fileTable(name))
      readTable(element, *table);
    else if (!name.endsWith("_model"))
      readValue(project_.keys().idOfKey(name),
                decodeEntities(element.firstChildElement("value").text()));
  }

  void readValue(int id, const QString& text) {
    if (id == GuiLanguage && project_.stored(id).isValid())
      return;
    if (isFlagInProjectFile(id))
      project_.setStored(id, text.contains("true"));
    else
      project_.setStored(id, ProjectLimits::allowed(id, text, project_));
    settleStoredValue(id, version_, project_);
  }

  static int sizeOf(const QDomElement& element, const char* attribute) {
    return wholeNumber(element.attribute(attribute).toDouble());
  }

  void readTable(const QDomElement& element, const FileTable& table) {
    const int rows = sizeOf(element, "row");
    const int columns = sizeOf(element, "column");
    if (table.table == ProjectTable::Well)
      project_.setValue(NumberOfWells, ProjectLimits::wells(rows, project_));
    else if (table.table == ProjectTable::Demand && project_.makeTable(table.table) != rows)
      project_.resizePeriods(ProjectLimits::periods(rows, project_));

    // Written so that a huge number in the file overflows nothing.
    if (rows > project_.makeTable(table.table) || columns > table.columns - table.firstColumn)
      return;
    std::vector<TableCell> cells;
    for (QDomElement cell = element.firstChildElement("value"); !cell.isNull();
         cell = cell.nextSiblingElement("value"))
      cells.push_back({sizeOf(cell, "row"), sizeOf(cell, "column"), decodeEntities(cell.text())});
    project_.setCells(table.table, cells);
  }

  void negateFirstHalf(ProjectTable table, int rateColumn) {
    const int rows = project_.makeTable(table);
    std::vector<TableCell> cells;
    for (int row = 0; row < rows / 2; ++row)
      cells.push_back(
          {row, rateColumn, cellOf(project_, table, row, rateColumn).toDouble() * -1.0});
    project_.setCells(table, cells);
  }

  /// Before this version a rate had no sign, and the first half of the wells withdrew.
  void giveWithdrawalWellsNegativeRates() {
    project_.setValue(NumberOfDemandsPerYear, 1);
    negateFirstHalf(ProjectTable::Well, WellColumns::Rate);
    negateFirstHalf(ProjectTable::WellDemand, WellDemandColumns::Rate);
  }

  void handOverPage() {
    const QDomElement canvas = root_.firstChildElement("__graphic").firstChildElement("CanvasEx");
    if (canvas.isNull())
      return;
    QDomDocument page("GraphicWidgetExport");
    page.appendChild(page.importNode(canvas, true));
    project_.takePage(page.toByteArray(1));
  }

  /// Results without a frame, or with a part of it, lie as the parameters of the file say.
  void readResultFrame() {
    RunFrame frame = runFrameOf(project_);
    const QDomElement element = root_.firstChildElement(resultFrame);
    const auto read = [&element](const char* tag, double& value) {
      bool isNumber = false;
      const double stored = element.firstChildElement(tag).text().toDouble(&isNumber);
      if (isNumber && std::isfinite(stored))
        value = stored;
    };
    read(originX, frame.origin.rx());
    read(originY, frame.origin.ry());
    read(flowDirection, frame.flowDirection);
    double cycle = frame.cycleLength;
    read(cycleLength, cycle);
    frame.cycleLength = wholeNumber(cycle);
    if (!element.isNull())
      frame.hasRegionalFlow = element.firstChildElement(regionalFlow).text() == "true";
    project_.setResultFrame(frame);
  }

  const QDomElement root_;
  ProjectTarget& project_;
  const double version_;
};

} // namespace

QString excess(const QDomElement& root) {
  const double wellsPerCount = versionOf(root) < firstVersionWithSignedRates ? 2 : 1;
  double wells = 0;
  double periods = 1;
  const QDomElement parameters = root.firstChildElement("__parameter_set");
  for (QDomElement element = parameters.firstChildElement(); !element.isNull();
       element = element.nextSiblingElement()) {
    const QString name = nameOf(element);
    const double value = element.firstChildElement("value").text().toDouble();
    if (name == fileTable(ProjectTable::Well).name)
      wells = std::max(wells, element.attribute("row").toDouble());
    else if (name == fileTable(ProjectTable::Demand).name)
      periods = std::max(periods, element.attribute("row").toDouble());
    else if (isNamed(name, NumberOfWells))
      wells = std::max(wells, value * wellsPerCount);
    else if (isNamed(name, NumberOfDemandsPerYear))
      periods = std::max(periods, value);
  }
  return ProjectLimits::excess(wells, periods);
}

bool read(const QString& fileName, ProjectTarget& project, QMap<QString, int>& fieldIds) {
  QDomDocument document;
  return readGuarded(fileName, document) &&
         Reader(document.documentElement(), project).read(fieldIds);
}

bool write(const QString& fileName, const Project& project, const ParameterKeys& keys,
           const MadeTables& tables, const std::optional<Page>& page) {
  const QDomDocument document = Writer(project, keys).document(tables, page);
  return replaceFile(fileName, header + xmlBytes(document));
}

} // namespace TVR::Data::ProjectFile
