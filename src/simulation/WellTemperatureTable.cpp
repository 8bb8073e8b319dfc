#include "simulation/WellTemperatureTable.h"

#include "data/SaveFile.h"
#include "data/TimeUnits.h"

#include <QTextStream>

namespace TVR {

namespace {

/// Enough digits that a time of centuries is told to the second.
QString number(double value) {
  return QString::number(value, 'g', 10);
}

void writeCell(QTextStream& out, const char* type, const QString& content) {
  out << "    <Cell><Data ss:Type=\"" << type << "\">" << content << "</Data></Cell>\n";
}

void writeSheet(QTextStream& out, const WellHistory& well) {
  out << " <Worksheet ss:Name=\"" << well.name.toHtmlEscaped() << "\">\n  <Table>\n";
  for (int column = 2; column <= 4; ++column)
    out << "   <Column ss:Index=\"" << column << "\" ss:AutoFitWidth=\"0\" ss:Width=\"110\"/>";
  out << "   <Row>\n";
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

void writeSpreadsheet(QIODevice& device, const std::vector<WellHistory>& wells) {
  QTextStream out(&device);
  out.setCodec("UTF-8");
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<Workbook xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
         " xmlns:x=\"urn:schemas-microsoft-com:office:excel\"\n"
         " xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\"\n"
         " xmlns:html=\"http://www.w3.org/TR/REC-html40\">\n";
  for (const WellHistory& well : wells)
    writeSheet(out, well);
  out << "</Workbook>\n";
}

void writeTabbedText(QIODevice& device, const std::vector<WellHistory>& wells) {
  QTextStream out(&device);
  out.setCodec("UTF-8");
  out << "Time [s]\tTime [a]\t";
  for (const WellHistory& well : wells)
    out << well.name << '\t';
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

bool writeWellTemperatureTable(const QString& fileName, const std::vector<WellHistory>& wells) {
  QSaveFile file(fileName);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
    return false;
  if (fileName.endsWith(".xml"))
    writeSpreadsheet(file, wells);
  else
    writeTabbedText(file, wells);
  return commitIfComplete(file);
}

} // namespace TVR
