#pragma once

#include <QMap>
#include <QString>

namespace TVR {

/// The ids of the items of the result page; 0 for an item that is not there.
struct PageItems {
  int programIdentification = 0;
  int projectAddress = 0;
  int mapView = 0;
  int mapLegend = 0;
  int mapScale = 0;
  int date = 0;
  int logo = 0;
  int summary = 0;
  int wells = 0;    ///< the curve of the wells in the map view
  int results = 0;  ///< the grid item with the mesh and its values
  int mapImage = 0; ///< the background picture of the map view
  int temperaturePlot = 0;
  int ratePlot = 0;
  int rateLabel = 0;        ///< found by name, not saved
  int temperatureLabel = 0; ///< found by name, not saved

  /// The ids under the names that a project file gives them, and back. A name that is missing
  /// leaves its id as it is.
  QMap<QString, int> fieldIds() const;
  void setFieldIds(const QMap<QString, int>& ids);
};

} // namespace TVR
