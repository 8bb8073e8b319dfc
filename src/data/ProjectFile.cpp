#include "data/ProjectFile.h"

#include "data/BuildTime.h"
#include "data/EntityEncoding.h"
#include "data/FileLimits.h"
#include "data/FileTables.h"
#include "data/LegacyReader.h"
#include "data/Manager.h"
#include "data/StoredValues.h"
#include "design/WellDesign.h"
#include "disk/FileReplacement.h"
#include "host/GraphicsInterface.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"
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
  explicit Writer(Manager& store) : store_(store) {}

  QDomDocument document(BrenvikApp::WorkspaceWindow* window, const QMap<QString, int>& fieldIds) {
    QDomElement root = document_.createElement("TVR");
    document_.appendChild(root);
    QDomElement application = append(root, "__application_version");
    append(application, "__version", TEVRANE_VERSION);
    append(application, "__build", buildTime());
    QDomElement parameters = append(root, "__parameter_set");
    appendValues(parameters);
    for (const FileTableKind kind :
         {FileTableKind::Well, FileTableKind::Demand, FileTableKind::WellDemand})
      if (kind == FileTableKind::Well || hasTableModel(kind, store_))
        appendTable(parameters, kind);
    if (window) {
      appendPage(root, window);
      appendFieldIds(parameters, fieldIds);
      if (showsResults(fieldIds))
        appendResultFrame(root);
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
    const QMap<int, QVariant> values = store_.values();
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
      QDomElement parameter = append(parameters, "parameter");
      append(parameter, "name", store_.key(entry.key()));
      append(parameter, "value", fileText(*entry));
      append(parameter, "unit");
    }
  }

  void appendTable(QDomElement& parameters, FileTableKind kind) {
    const QAbstractItemModel& model = *tableModel(kind, store_);
    const FileTable& table = fileTable(kind);
    QDomElement parameter = append(parameters, "parameter");
    parameter.setAttribute("row", model.rowCount());
    parameter.setAttribute("column", model.columnCount() - table.firstColumn);
    append(parameter, "name", table.name);
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = table.firstColumn; column < model.columnCount(); ++column) {
        QDomElement cell =
            append(parameter, "value", fileText(model.index(row, column).data(Qt::EditRole)));
        cell.setAttribute("row", row);
        cell.setAttribute("column", column);
        cell.setAttribute("unit", "");
      }
    }
  }

  void appendPage(QDomElement& root, BrenvikApp::WorkspaceWindow* window) {
    const auto* page = dynamic_cast<Sketra_lib::GraphicsWorkspaceWindow*>(window);
    if (!page)
      return;
    QDomElement graphic = append(root, "__graphic");
    QDomDocument contents;
    if (contents.setContent(page->contents(), false))
      graphic.appendChild(document_.importNode(contents.documentElement(), true));
  }

  /// How the results on the page lie on the map, which the parameters need no longer tell.
  void appendResultFrame(QDomElement& root) {
    const std::optional<RunFrame>& frame = store_.resultFrame();
    if (!frame)
      return;
    QDomElement element = append(root, resultFrame);
    append(element, originX, exactText(frame->origin.x()));
    append(element, originY, exactText(frame->origin.y()));
    append(element, flowDirection, exactText(frame->flowDirection));
    append(element, regionalFlow, frame->hasRegionalFlow ? "true" : "false");
    append(element, cycleLength, QString::number(frame->cycleLength));
  }

  void appendFieldIds(QDomElement& parameters, const QMap<QString, int>& fieldIds) {
    QDomElement ids = append(parameters, "graphic_ids");
    for (auto id = fieldIds.begin(); id != fieldIds.end(); ++id)
      append(ids, id.key(), QString::number(*id));
  }

  Manager& store_;
  QDomDocument document_;
};

/// Brings the elements of a file into the store.
class Reader {
public:
  Reader(const QDomElement& root, Manager& store)
      : root_(root), store_(store), version_(root.firstChildElement("__application_version")
                                                 .firstChildElement("__version")
                                                 .text()
                                                 .left(3)
                                                 .toDouble()) {}

  /// False, and nothing read, if the file asks for too much.
  bool read(QMap<QString, int>& fieldIds) {
    const QDomElement parameters = root_.firstChildElement("__parameter_set");
    if (sizesTooOften(parameters) || !excess().isEmpty() ||
        (parameters.isNull() && !LegacyReader::read(root_, version_, store_)))
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

  /// What the file asks for beyond the limits of wells and demand periods; empty if nothing.
  QString excess() const {
    const double wellsPerCount = version_ < firstVersionWithSignedRates ? 2 : 1;
    double wells = 0;
    double periods = 1;
    const QDomElement parameters = root_.firstChildElement("__parameter_set");
    for (QDomElement element = parameters.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
      const QString name = nameOf(element);
      const double value = element.firstChildElement("value").text().toDouble();
      if (name == fileTable(FileTableKind::Well).name)
        wells = std::max(wells, element.attribute("row").toDouble());
      else if (name == fileTable(FileTableKind::Demand).name)
        periods = std::max(periods, element.attribute("row").toDouble());
      else if (name == store_.key(NumberOfWells))
        wells = std::max(wells, value * wellsPerCount);
      else if (name == store_.key(NumberOfDemandsPerYear))
        periods = std::max(periods, value);
    }
    return FileLimits::excess(wells, periods);
  }

private:
  static QString nameOf(const QDomElement& element) {
    return element.firstChildElement("name").text();
  }

  bool sizesTooOften(const QDomElement& parameters) const {
    int sizings = 0;
    for (QDomElement element = parameters.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement())
      if (const QString name = nameOf(element);
          fileTable(name) || name == store_.key(NumberOfWells))
        ++sizings;
    return sizings > maxSizings;
  }

  void readParameter(const QDomElement& element) {
    const QString name = nameOf(element);
    if (const FileTable* table = fileTable(name))
      readTable(element, *table);
    else if (!name.endsWith("_model"))
      readValue(store_.idOfKey(name), decodeEntities(element.firstChildElement("value").text()));
  }

  void readValue(int id, const QString& text) {
    if (id == GuiLanguage && store_.values().contains(id))
      return;
    if (isFlagInProjectFile(id))
      store_.setStored(id, text.contains("true"));
    else
      store_.setStored(id, FileLimits::allowed(id, text, store_));
    settleStoredValue(id, version_, store_);
  }

  static int sizeOf(const QDomElement& element, const char* attribute) {
    return wholeNumber(element.attribute(attribute).toDouble());
  }

  void readTable(const QDomElement& element, const FileTable& table) {
    const int rows = sizeOf(element, "row");
    const int columns = sizeOf(element, "column");
    if (table.kind == FileTableKind::Well)
      store_.setValue(NumberOfWells, FileLimits::wells(rows, store_));
    else if (table.kind == FileTableKind::Demand && store_.demandModel()->rowCount() != rows)
      store_.demandModel()->resize(FileLimits::periods(rows, store_));

    const QAbstractItemModel& model = *tableModel(table.kind, store_);
    // Written so that a huge number in the file overflows nothing.
    if (rows > model.rowCount() || columns > model.columnCount() - table.firstColumn)
      return;
    std::vector<WellModel::Cell> cells;
    for (QDomElement cell = element.firstChildElement("value"); !cell.isNull();
         cell = cell.nextSiblingElement("value"))
      cells.push_back({sizeOf(cell, "row"), sizeOf(cell, "column"), decodeEntities(cell.text())});
    setCells(table.kind, cells, store_);
  }

  static void negateFirstHalf(QAbstractItemModel& model, int column) {
    for (int row = 0; row < model.rowCount() / 2; ++row) {
      const QModelIndex index = model.index(row, column);
      model.setData(index, index.data(Qt::EditRole).toDouble() * -1.0, Qt::EditRole);
    }
  }

  /// Before this version a rate had no sign, and the first half of the wells withdrew.
  void giveWithdrawalWellsNegativeRates() {
    store_.setValue(NumberOfDemandsPerYear, 1);
    negateFirstHalf(*store_.wellModel(), WellModel::Rate);
    negateFirstHalf(*store_.wellDemandModel(), WellDemandModel::Rate);
  }

  void handOverPage() {
    const QDomElement canvas = root_.firstChildElement("__graphic").firstChildElement("CanvasEx");
    if (canvas.isNull())
      return;
    QDomDocument page("GraphicWidgetExport");
    page.appendChild(page.importNode(canvas, true));
    emit store_.graphicsWindowContents(page.toByteArray(1));
  }

  /// Results without a frame, or with a part of it, lie as the parameters of the file say.
  void readResultFrame() {
    RunFrame frame = runFrameOf(store_);
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
    store_.setResultFrame(frame);
  }

  const QDomElement root_;
  Manager& store_;
  const double version_;
};

} // namespace

bool read(const QString& fileName, Manager& store, QMap<QString, int>& fieldIds) {
  QDomDocument document;
  if (!readGuarded(fileName, document))
    return false;
  if (!Reader(document.documentElement(), store).read(fieldIds))
    return false;
  emit store.dataChanged();
  return true;
}

QString excess(const QDomElement& root, Manager& store) {
  return Reader(root, store).excess();
}

bool write(const QString& fileName, Manager& store, BrenvikApp::WorkspaceWindow* window,
           const QMap<QString, int>& fieldIds) {
  const QDomDocument document = Writer(store).document(window, fieldIds);
  return replaceFile(fileName, header + xmlBytes(document));
}

} // namespace TVR::Data::ProjectFile
