#pragma once

#include <QString>

#include <functional>
#include <vector>

class QIODevice;
class Well;

namespace TVR {

/// Temperatures of a well by time, as the integrator's steps recorded them.
struct WellHistory {
  QString name;
  std::vector<double> times;        ///< [s]
  std::vector<double> temperatures; ///< [deg C], one per time
};

/// What the wells of a simulation have recorded. `nameOf` gives the name of a well by its row.
std::vector<WellHistory> wellHistories(const std::vector<Well*>& wells,
                                       const std::function<QString(int)>& nameOf);

/// Writes the histories, names as they can be printed, as XML Spreadsheet 2003, one sheet a well.
/// The third column holds the temperature, although its heading speaks of a change.
void writeSpreadsheet(QIODevice& device, const std::vector<WellHistory>& wells);

/// Writes the histories as tab-separated text, names as they can be printed, one line for each time
/// of the first well.
void writeTabbedText(QIODevice& device, const std::vector<WellHistory>& wells);

/// Who named a table: the user, or a file that anybody can have written.
enum class NamedBy { User, File };

/// Why a table must not be written to a name that stands in a file; empty if it may. Nothing is
/// replaced there but a table of wells, and no file is made whose ending is none of a table's: a
/// stranger's file would choose what other programs read and run.
QString refusalOfTable(const QString& fileName);

/// Writes the table that the name's ending selects: a spreadsheet for ".xml", text otherwise. An
/// older file is replaced only when the new one is complete. False if it can't be written, or must
/// not be.
bool writeWellTemperatureTable(const QString& fileName, const std::vector<WellHistory>& wells,
                               NamedBy namedBy);

} // namespace TVR
