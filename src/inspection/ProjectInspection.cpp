#include "inspection/ProjectInspection.h"

#include "files/FileTables.h"
#include "files/ProjectFile.h"
#include "project/ParameterTable.h"
#include "xml/GuardedXml.h"

#include <QDomDocument>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace TVR {

namespace {

using Data::FileTable;

bool isKey(const QString& name, const char* ParameterRow::*key) {
  return !name.isEmpty() && std::any_of(parameterTable().begin(), parameterTable().end(),
                                        [&](const ParameterRow& row) { return name == row.*key; });
}

class ProjectInspector {
public:
  ProjectInspector(const QDomElement& root, Findings& result)
      : root_(root), parameters_(root.firstChildElement("__parameter_set")), result_(result) {}

  void inspect() {
    if (!holdsProject()) {
      result_.errors << "is no project file: it holds no parameter of a project";
      return;
    }
    const QString excess = Data::ProjectFile::excess(root_);
    if (!excess.isEmpty()) {
      result_.errors << "well_demand_model: " + excess;
      return;
    }
    for (QDomElement element = parameters_.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement())
      inspectParameter(element, element.firstChildElement("name").text());
    inspectSizes();
  }

private:
  /// Whether an element names something that a reader takes: of this program generation, or of the
  /// previous one.
  bool holdsProject() const {
    const bool isOld = parameters_.isNull();
    for (QDomElement element = (isOld ? root_ : parameters_).firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
      const QString name = element.firstChildElement(isOld ? QString() : "name").text();
      if (isOld ? isKey(name, &ParameterRow::formerKey)
                : isKey(name, &ParameterRow::key) || Data::fileTable(name))
        return true;
    }
    return false;
  }

  void inspectParameter(const QDomElement& element, const QString& name) {
    if (const FileTable* table = Data::fileTable(name))
      inspectTable(element, *table);
    if (!name.isEmpty() && seen_.contains(name))
      result_.warnings << name + ": stands twice; the last one counts";
    seen_.insert(name);
  }

  /// A whole number from 0 that an attribute holds; -1 if it holds none.
  static double wholeNumber(const QDomElement& element, const char* attribute) {
    bool isNumber = false;
    const double number = element.attribute(attribute).toDouble(&isNumber);
    return isNumber && number >= 0 && number == std::trunc(number) ? number : -1;
  }

  void inspectTable(const QDomElement& element, const FileTable& table) {
    const double rows = wholeNumber(element, "row");
    const double columns = wholeNumber(element, "column");
    if (rows < 0 || columns < 0 || columns > table.columns - table.firstColumn) {
      result_.errors << QStringLiteral("%1: expected the numbers of rows and columns (at most %2), "
                                       "found row=\"%3\", column=\"%4\"")
                            .arg(table.name)
                            .arg(table.columns - table.firstColumn)
                            .arg(element.attribute("row"), element.attribute("column"));
      return;
    }
    rows_[table.name] = rows;
    for (QDomElement cell = element.firstChildElement("value"); !cell.isNull();
         cell = cell.nextSiblingElement("value"))
      if (!inspectCell(cell, table, rows))
        return; // one line will do
  }

  /// The reader drops rates that are more than those of the wells and demand periods.
  void inspectSizes() {
    const double wells = rows_.value("well_model");
    const double periods = std::max(rows_.value("demand_model"), 1.0);
    const double rates = rows_.value("well_demand_model");
    if (rates > wells * periods)
      result_.errors << QStringLiteral("well_demand_model: expected at most %1 rows, for %2 wells "
                                       "and %3 demand periods, found %4")
                            .arg(wells * periods)
                            .arg(wells)
                            .arg(periods)
                            .arg(rates);
  }

  bool inspectCell(const QDomElement& cell, const FileTable& table, double rows) {
    const double row = wholeNumber(cell, "row");
    const double column = wholeNumber(cell, "column");
    const QString place = QStringLiteral("%1, row \"%2\", column \"%3\": ")
                              .arg(table.name, cell.attribute("row"), cell.attribute("column"));
    if (row < 0 || row >= rows || column < table.firstColumn || column >= table.columns) {
      result_.errors << place + QStringLiteral("the table has no such cell; expected rows 0 to %1 "
                                               "and columns %2 to %3")
                                    .arg(rows - 1)
                                    .arg(table.firstColumn)
                                    .arg(table.columns - 1);
      return false;
    }
    const bool isName =
        table.table == ProjectTable::Well && static_cast<int>(column) == WellColumns::Name;
    bool isNumber = false;
    const double number = cell.text().toDouble(&isNumber);
    if (!isName && !(isNumber && std::isfinite(number))) {
      result_.errors << place + QStringLiteral("expected a number, found \"%1\"").arg(cell.text());
      return false;
    }
    return true;
  }

  const QDomElement root_;
  const QDomElement parameters_;
  QSet<QString> seen_;
  QHash<QString, double> rows_; ///< of each table
  Findings& result_;
};

} // namespace

void inspectProject(const QString& fileName, Findings& result) {
  QDomDocument document;
  if (readGuarded(fileName, document))
    ProjectInspector(document.documentElement(), result).inspect();
  else
    result.errors << "is no project file that can be read: expected well-formed XML";
}

} // namespace TVR
