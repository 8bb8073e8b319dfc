#pragma once

#include <QString>

#include <vector>

class QIODevice;

namespace TVR {

/// Temperatures of a well by time, as the integrator's steps recorded them.
struct WellHistory {
  QString name;
  std::vector<double> times;        ///< [s]
  std::vector<double> temperatures; ///< [deg C], one per time
};

/// Writes the histories as XML Spreadsheet 2003, one sheet a well. The third column holds the
/// temperature, although its heading speaks of a change.
void writeSpreadsheet(QIODevice& device, const std::vector<WellHistory>& wells);

/// Writes the histories as tab-separated text, one line for each time of the first well.
void writeTabbedText(QIODevice& device, const std::vector<WellHistory>& wells);

/// Writes the table that the name's ending selects: a spreadsheet for ".xml", text otherwise. An
/// older file is replaced only when the new one is complete. False if it can't be written.
bool writeWellTemperatureTable(const QString& fileName, const std::vector<WellHistory>& wells);

} // namespace TVR
