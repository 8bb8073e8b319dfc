#pragma once

#include "host/MapRange.h"
#include "results/PageAccess.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>

namespace TVR {

class ProjectReader;

/// The range that shows a map at 1 : `scale` on a plotting area of `area` [mm]: with the lower left
/// corner of `present`, or else with its centre.
MapRange rangeAtScale(const MapRange& present, const QSizeF& area, double scale, bool holdOrigin);

/// The range shifted so that `origin` is its lower left corner.
MapRange rangeAtOrigin(const MapRange& present, const QPointF& origin);

/// The scale at which a map whose plotting area is `width` [mm] wide shows so much [m]; none for an
/// extension that is not above 0.
std::optional<int> scaleOfExtension(double extension, double width);

/// The range that a page shows which is opened for a project, where `present` is the range of the
/// map as the page comes, and `area` its plotting area [mm].
MapRange openedRange(const ProjectReader& project, const MapRange& present, const QSizeF& area);

/// The scales along x and along y at which an area [mm] shows a range, cut to whole numbers.
struct MapScales {
  int x;
  int y;
};
MapScales scalesOfRange(const MapRange& range, const QSizeF& area);

/// A scale and the lower left corner of the map at that scale [map units].
struct MapPlace {
  int scale;
  QPointF origin;
};
/// The largest of the usual map scales (1, 2, 2.5 and 5 times a power of ten, from 1 : 100 on) at
/// which an area [mm] shows all of `content` with some room around it, in its middle.
MapPlace fittedMap(const QRectF& content, const QSizeF& area);

/// What stands in the item "Map scale".
QString mapScaleText(int scale);

/// A size that was set as QSize or as QSizeF.
QSizeF sizeFrom(const QVariant& value);

/// The map on the result page: its extent and scale, the map picture behind it and the wells on it.
/// Every operation does nothing unless the active window shows a page, and waits for the lock as
/// long as changes of the page may wait.
class MapView {
public:
  /// The observer hears of changes of the items that are made here.
  MapView(const PageAccess& page, DATA::DataObserver& observer);

  /// Present range and plotting area of the map.
  MapRange range() const;
  QSizeF area() const;

  /// Shows the map at 1 : `scale`; see rangeAtScale.
  void setScale(int scale, bool holdOrigin);
  /// The scale at which the map is `extension` [m] wide; none for an extension that is not above 0.
  std::optional<int> scaleOfExtension(double extension) const;
  /// Shifts the map so that (x, y) is its lower left corner.
  void moveToOrigin(double x, double y);
  /// The centre of the map becomes the place where new wells stand.
  void setDefaultWellPositions();

  /// Shows the project's background picture, anew if it was removed; removes it if the project has
  /// none.
  void showMap();
  /// Puts the picture of the map, if there is one, where the project has it.
  void placeMap();
  /// Shows a picture whose lower left corner is `origin` [m]; no file shows nothing.
  void showMap(const QString& file, const QPointF& origin, const QSizeF& size);

  /// Puts the wells on the map, once for the life of the page.
  void showWells();
  /// Writes the names of the wells beside them and shows what each one does. Does nothing if the
  /// lock is not free.
  void markWells();
  /// Puts the wells of a project that was read from a file on the map, in place of those that the
  /// file has, and takes up the observation of the page.
  void takeOverLoadedPage();

private:
  QVariant ofMap(int property) const;
  void setOnMap(int property, const QVariant& value);
  /// The picture that is shown next is a new one if the page has none any more.
  void forgetRemovedMap();
  void addWells(double symbolSize);

  PageAccess page_;
  DATA::DataObserver& observer_;
};

} // namespace TVR
