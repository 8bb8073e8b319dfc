#include "simulation/WellTemperatureTable.h"

#include "disk/FileReplacement.h"
#include "messages/PrintableText.h"
#include "project/Units.h"
#include "simulator/mesh/Well.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>

namespace TVR {

namespace {

constexpr char textBeginning[] = "Time [s]\tTime [a]\t";
constexpr char spreadsheetBeginning[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<Workbook xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
    " xmlns:x=\"urn:schemas-microsoft-com:office:excel\"\n"
    " xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
    " xmlns:html=\"http://www.w3.org/TR/REC-html40\">\n";

/// What a file is told by: its first sheet stands within so many bytes.
constexpr qint64 tellingLength = 1 << 16;

bool isWellTable(const QFileInfo& info) {
  QFile file(info.filePath());
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) // to open a pipe would be to wait
    return false;
  const QByteArray beginning = file.read(tellingLength);
  return beginning.startsWith(textBeginning) ||
         (beginning.startsWith(spreadsheetBeginning) && beginning.contains(">Time [a]<"));
}

/// Enough digits that a time of centuries is told to the second.
QString number(double value) {
  return QString::number(value, 'g', 10);
}

void writeCell(QTextStream& out, const char* type, const QString& content) {
  out << "    <Cell><Data ss:Type=\"" << type << "\">" << content << "</Data></Cell>\n";
}

void writeSheet(QTextStream& out, const WellHistory& well) {
  out << " <Worksheet ss:Name=\"" << printable(well.name).toHtmlEscaped() << "\">\n  <Table>\n";
  for (int column = 2; column <= 4; ++column)
    out << "   <Column ss:Index=\"" << column << "\" ss:AutoFitWidth=\"0\" ss:Width=\"110\"/>";
  out << "   <Row>\n";
  // Required oddity: the column of the change holds the temperature itself [°C].
  for (const char* heading : {"Time [s]", "Time [a]", "Temperature change [K]"})
    writeCell(out, "String", heading);
  out << "   </Row>\n";
  for (std::size_t i = 0; i < well.times.size(); ++i) {
    out << "   <Row>\n";
    for (const double value : {well.times[i], inYears(well.times[i]), well.temperatures[i]})
      writeCell(out, "Number", number(value));
    out << "   </Row>\n";
  }
  out << "  </Table>\n </Worksheet>\n";
}

} // namespace

std::vector<WellHistory> wellHistories(const std::vector<Well*>& wells,
                                       const std::function<QString(int)>& nameOf) {
  std::vector<WellHistory> histories;
  for (const Well* well : wells)
    histories.push_back({nameOf(well->id()), well->times(), well->temperatures()});
  return histories;
}

void writeSpreadsheet(QIODevice& device, const std::vector<WellHistory>& wells) {
  QTextStream out(&device);
  out.setCodec("UTF-8");
  out << spreadsheetBeginning;
  for (const WellHistory& well : wells)
    writeSheet(out, well);
  out << "</Workbook>\n";
}

void writeTabbedText(QIODevice& device, const std::vector<WellHistory>& wells) {
  QTextStream out(&device);
  out.setCodec("UTF-8");
  out << textBeginning;
  for (const WellHistory& well : wells)
    out << printable(well.name) << '\t';
  out << '\n';
  const std::size_t lines = wells.empty() ? 0 : wells.front().times.size();
  for (std::size_t i = 0; i < lines; ++i) {
    const double time = wells.front().times[i];
    out << number(time) << '\t' << number(inYears(time)) << '\t';
    for (const WellHistory& well : wells)
      out << number(well.temperatures[i]) << '\t';
    out << '\n';
  }
}

QString refusalOfTable(const QString& fileName) {
  static const QRegularExpression tableEnding("\\.(out|xml|txt|csv|tsv|tab|dat)$",
                                              QRegularExpression::CaseInsensitiveOption);
  const QFileInfo file(fileName);
  if (file.isSymLink() && !file.exists())
    return QStringLiteral("it is a link that leads nowhere");
  if (file.exists())
    return isWellTable(file) ? QString() : QStringLiteral("what is there is no table of wells");
  if (!tableEnding.match(fileName).hasMatch())
    return QStringLiteral("a table ends in .out, .xml, .txt, .csv, .tsv, .tab or .dat");
  return {};
}

bool writeWellTemperatureTable(const QString& fileName, const std::vector<WellHistory>& wells,
                               NamedBy namedBy) {
  if (namedBy == NamedBy::File && !refusalOfTable(fileName).isEmpty())
    return false;
  QBuffer table;
  table.open(QIODevice::WriteOnly);
  if (fileName.endsWith(".xml"))
    writeSpreadsheet(table, wells);
  else
    writeTabbedText(table, wells);
  return replaceFile(fileName, table.data());
}

} // namespace TVR
