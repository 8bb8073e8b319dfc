#include "results/ShapefileExport.h"

#include "design/ParameterId.h"
#include "messages/UserMessages.h"
#include "project/ProjectTarget.h"
#include "results/ExportOptionsDialog.h"
#include "results/ShapefileHandles.h"
#include "results/ShapefileSet.h"
#include "results/StepFiles.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

namespace TVR {

using namespace Sketra_lib;

namespace {

constexpr int endingLength = 4; // with its point

enum Column { IdColumn, ProjectColumn, ParameterColumn, ValueColumn, UnitColumn, ColumnCount };

struct ColumnRow {
  const char* name;
  DBFFieldType type;
  int width;
  int decimals;
};

/// Required oddity: the id has three digits, although records can pass 999; readers know the form.
constexpr ColumnRow columns[ColumnCount] = {
    {"ID", FTInteger, 3, 0},    {"project", FTString, 25, 0}, {"parameter", FTString, 25, 0},
    {"value", FTDouble, 10, 3}, {"unit", FTString, 10, 0},
};

/// The column of the project takes a name of this length [bytes], as far as the format goes.
bool addColumns(DBFHandle table, int projectNameLength) {
  for (int i = 0; i < ColumnCount; ++i) {
    const ColumnRow& column = columns[i];
    const int width = i == ProjectColumn ? std::max(column.width, projectNameLength) : column.width;
    if (DBFAddField(table, column.name, column.type, width, column.decimals) < 0)
      return false;
  }
  return true;
}

/// Widths count bytes: a text that is too long ends with its last whole character.
void writeText(DBFHandle table, int record, Column column, const QString& text) {
  int width = 0;
  DBFGetFieldInfo(table, column, nullptr, &width, nullptr);
  std::string bytes = text.toStdString();
  if (bytes.size() > std::size_t(width)) {
    std::size_t end = width;
    while (end > 0 && (bytes[end] & 0xC0) == 0x80)
      --end;
    bytes.resize(end);
  }
  DBFWriteStringAttribute(table, record, column, bytes.c_str());
}

} // namespace

QString withoutShapefileEnding(const QString& fileName) {
  const int length = fileName.size() - (fileName.lastIndexOf('/') + 1);
  const bool cuts = length > endingLength && fileName[fileName.size() - endingLength] == '.';
  return cuts ? fileName.chopped(endingLength) : fileName;
}

bool ShapefileExport::fails(const QString& text) {
  tellUser(Severity::Critical, programTitle, text);
  return false;
}

QString ShapefileExport::projectName() const {
  const QString name = page_.project.effective(Parameter::ProjectName).toString();
  return name.isEmpty() ? QFileInfo(page_.projectFile).completeBaseName() : name;
}

void ShapefileExport::ask(BrenvikApp::ApplicationInterface* host) const {
  const auto choice =
      askForExport(page_, host, tr("Save shapefile"), tr("Shapefile (*.shp *.shx *.dbf)"));
  if (choice)
    write(withoutShapefileEnding(choice->fileName), choice->isohypses, choice->isotherms);
}

QString ShapefileExport::stepFile(double time, const QString& directory) {
  return QStringLiteral("%1/%2_month_isolines.shp")
      .arg(directory)
      .arg(StepFiles::wholeMonths(time));
}

bool ShapefileExport::writeStep(double time, const QString& directory) const {
  return write(stepFile(time, directory));
}

bool ShapefileExport::write(const QString& fileName, bool isohypses, bool isotherms) const {
  if (!page_.showsPage())
    return false;
  ShapefileSet files(fileName);
  if (!files.isPossible())
    return fails(tr("Unable to create:%1").arg(fileName));
  if (!writeFiles(files, fileName, isohypses, isotherms))
    return false;
  return files.commit() || fails(tr("Unable to create:%1").arg(fileName));
}

bool ShapefileExport::writeFiles(const ShapefileSet& files, const QString& fileName, bool isohypses,
                                 bool isotherms) const {
  const QByteArray name = QFile::encodeName(files.aside());
  const ShapeTable table(DBFCreate(name), &DBFClose);
  if (!table)
    return fails(tr("Unable to create:%1").arg(fileName));
  if (!addColumns(table.get(), projectName().toUtf8().size()))
    return fails(tr("Unable to create dbf file for %1").arg(fileName));
  if (!ShapeFile(SHPCreate(name, SHPT_ARC), &SHPClose))
    return fails(tr("Unable to create:%1").arg(fileName));
  const ShapeFile shapes(SHPOpen(name, "r+b"), &SHPClose);
  if (!shapes)
    return fails(tr("Unable to open:%1").arg(fileName));

  int shape = 0;
  return (!isohypses || writeLines(Property::Drawdowns, shape, shapes.get(), table.get(),
                                   tr("draw down"), tr("m"))) &&
         (!isotherms || writeLines(Property::Temperature, shape, shapes.get(), table.get(),
                                   tr("temperature change"), tr("K")));
}

bool ShapefileExport::writeLines(Property::DataSet set, int& shape, SHPHandle shapes,
                                 DBFHandle table, const QString& parameter,
                                 const QString& unit) const {
  if (page_.items.results < 1)
    return true;
  selectDataSet(page_, set);
  for (const int id : isolineIds(page_))
    if (!writeIsoline(id, shape, shapes, table, parameter, unit))
      return false;
  return true;
}

bool ShapefileExport::writeIsoline(int id, int& shape, SHPHandle shapes, DBFHandle table,
                                   const QString& parameter, const QString& unit) const {
  if (id < 1 || !page_.window)
    return true;
  const Isoline line = readIsoline(*page_.window, id);
  int shapeType = SHPT_ARC;
  SHPGetInfo(shapes, nullptr, &shapeType, nullptr, nullptr);
  std::vector<double> x;
  std::vector<double> y;
  std::vector<int> parts;
  try {
    x.reserve(line.points.size());
    y.reserve(line.points.size());
    parts.resize(line.points.size());
  } catch (const std::bad_alloc&) {
    return fails(tr("Out of memory"));
  }
  for (const QPointF& point : line.points) {
    x.push_back(point.x());
    y.push_back(point.y());
  }
  const QString project = projectName();
  const DecimalPoint decimalPoint;
  for (const IsolinePiece& piece : piecesOf(line, LineRest::IsAPiece)) {
    DBFWriteIntegerAttribute(table, shape, IdColumn, shape);
    writeText(table, shape, ProjectColumn, project);
    writeText(table, shape, ParameterColumn, parameter);
    DBFWriteDoubleAttribute(table, shape, ValueColumn, line.level);
    writeText(table, shape, UnitColumn, unit);
    const ShapeRecord record(SHPCreateObject(shapeType, -1, 0, parts.data(), nullptr, piece.count,
                                             x.data() + piece.first, y.data() + piece.first,
                                             nullptr, nullptr),
                             &SHPDestroyObject);
    SHPWriteObject(shapes, -1, record.get());
    ++shape;
  }
  return true;
}

} // namespace TVR
