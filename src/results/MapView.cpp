#include "results/MapView.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "messages/PluginText.h"
#include "project/ProjectTarget.h"
#include "results/WellMarks.h"

#include <QBrush>
#include <QPen>

#include <algorithm>

namespace TVR {

using namespace Parameter;
using namespace Sketra_lib::Property;

namespace {

constexpr double wellSymbol = 25.0; // [0.1 mm]
/// Required oddity: the wells of a project that was read from a file are smaller.
constexpr double loadedWellSymbol = 10.0; // [0.1 mm]
constexpr int circle = 2;
/// The graphics library takes the place of a picture in tenths of map units.
constexpr double pictureUnit = 10.0;

} // namespace

MapRange rangeAtScale(const MapRange& present, const QSizeF& area, double scale, bool holdOrigin) {
  if (holdOrigin)
    return {present.xMinimum, present.xMinimum + scale * area.width() / 1000, present.yMinimum,
            present.yMinimum + scale * area.height() / 1000};
  const QPointF centre = present.centre();
  const double halfWidth = area.width() * 0.5 * scale / 1000;
  const double halfHeight = area.height() * 0.5 * scale / 1000;
  return {centre.x() - halfWidth, centre.x() + halfWidth, centre.y() - halfHeight,
          centre.y() + halfHeight};
}

MapRange rangeAtOrigin(const MapRange& present, const QPointF& origin) {
  // The way counts: the centre of the range becomes a place of wells, to the last digit.
  const double right = present.xMinimum - origin.x();
  const double up = present.yMinimum - origin.y();
  return {present.xMinimum - right, present.xMaximum - right, present.yMinimum - up,
          present.yMaximum - up};
}

std::optional<int> scaleOfExtension(double extension, double width) {
  return extension > 0 ? std::optional(wholeNumber(extension / width * 1000)) : std::nullopt;
}

MapRange openedRange(const ProjectReader& project, const MapRange& present, const QSizeF& area) {
  const std::optional<int> scale =
      project.flag(ViewUseExtension)
          ? scaleOfExtension(project.number(ViewHorizontalExtension), area.width())
          : project.count(ViewScale);
  return rangeAtOrigin(scale ? rangeAtScale(present, area, *scale, true) : present,
                       {project.number(ViewX), project.number(ViewY)});
}

MapScales scalesOfRange(const MapRange& range, const QSizeF& area) {
  return {wholeNumber(range.width() / area.width() * 1000),
          wholeNumber(range.height() / area.height() * 1000)};
}

MapPlace fittedMap(const QRectF& content, const QSizeF& area) {
  constexpr double room = 1.1;
  constexpr int largestScale = 100;
  const double least =
      room * 1000 * std::max(content.width() / area.width(), content.height() / area.height());
  int scale = largestScale;
  for (int decade = largestScale; scale < least && decade < 100'000'000; decade *= 10)
    for (const double digits : {1.0, 2.0, 2.5, 5.0, 10.0})
      if (scale < least)
        scale = static_cast<int>(digits * decade);
  const QPointF half(scale * area.width() / 2000, scale * area.height() / 2000);
  return {scale, content.center() - half};
}

QString mapScaleText(int scale) {
  return QStringLiteral("<b>%1 1:%2</b>").arg(PluginText::tr("Map scale")).arg(scale);
}

QSizeF sizeFrom(const QVariant& value) {
  return value.userType() == QMetaType::QSize ? QSizeF(value.toSize()) : value.toSizeF();
}

MapView::MapView(const PageAccess& page, DATA::DataObserver& observer)
    : page_(page), observer_(observer) {}

QVariant MapView::ofMap(int property) const {
  return page_.window->itemProperty(page_.items.mapView, property);
}

void MapView::setOnMap(int property, const QVariant& value) {
  page_.window->setItemProperty(page_.items.mapView, property, value);
}

MapRange MapView::range() const {
  return {ofMap(XMinimum).toDouble(), ofMap(XMaximum).toDouble(), ofMap(YMinimum).toDouble(),
          ofMap(YMaximum).toDouble()};
}

QSizeF MapView::area() const {
  const QSizeF size = sizeFrom(ofMap(Size));
  return {size.width() - ofMap(MarginLeft).toDouble() - ofMap(MarginRight).toDouble(),
          size.height() - ofMap(MarginTop).toDouble() - ofMap(MarginBottom).toDouble()};
}

void MapView::setScale(int scale, bool holdOrigin) {
  if (!page_.showsPage())
    return;
  const MapRange present = range();
  const MapRange next = rangeAtScale(present, area(), scale, holdOrigin);
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  // In this order the range is never empty on the way.
  const auto setRange = [this](int minimumId, double minimum, int maximumId, double maximum,
                               double presentMaximum) {
    if (minimum >= presentMaximum) {
      setOnMap(maximumId, maximum);
      setOnMap(minimumId, minimum);
    } else {
      setOnMap(minimumId, minimum);
      setOnMap(maximumId, maximum);
    }
  };
  setRange(XMinimum, next.xMinimum, XMaximum, next.xMaximum, present.xMaximum);
  setOnMap(XAutoScale, true);
  setRange(YMinimum, next.yMinimum, YMaximum, next.yMaximum, present.yMaximum);
  setOnMap(YAutoScale, true);
  page_.window->setItemProperty(page_.items.mapScale, Html, mapScaleText(scale));
  setOnMap(XAutoScale, false);
  setOnMap(YAutoScale, false);
}

std::optional<int> MapView::scaleOfExtension(double extension) const {
  return page_.showsPage() ? TVR::scaleOfExtension(extension, area().width()) : std::nullopt;
}

void MapView::moveToOrigin(double x, double y) {
  if (!page_.showsPage())
    return;
  const MapRange present = range();
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  const MapRange next = rangeAtOrigin(present, {x, y});
  const auto shift = [this](int minimumId, double minimum, int maximumId, double maximum,
                            bool isDownwards) {
    setOnMap(UniformScale, false);
    if (isDownwards) {
      setOnMap(minimumId, minimum);
      setOnMap(maximumId, maximum);
    } else {
      setOnMap(maximumId, maximum);
      setOnMap(minimumId, minimum);
    }
    setOnMap(UniformScale, true);
  };
  shift(XMinimum, next.xMinimum, XMaximum, next.xMaximum, present.xMinimum > x);
  shift(YMinimum, next.yMinimum, YMaximum, next.yMaximum, present.yMinimum > y);
}

void MapView::setDefaultWellPositions() {
  if (page_.showsPage())
    page_.project.setValue(DefaultWellPosition, range().centre());
}

void MapView::showMap() {
  const ProjectReader& project = page_.project;
  const QString file = project.text(BackgroundImageFile);
  if (project.flag(BackgroundImage) && !file.isEmpty()) {
    forgetRemovedMap();
    showMap(file, {project.number(BackgroundImageX), project.number(BackgroundImageY)},
            {project.number(BackgroundImageWidth), project.number(BackgroundImageHeight)});
  } else if (page_.showsPage() && page_.items.mapImage >= 1) {
    if (const PageLock lock(page_.mutex); lock)
      page_.window->removeItem(page_.items.mapImage, 0);
    // Required oddity: the id of the picture that is gone is kept, as long as none is wanted.
  }
}

void MapView::forgetRemovedMap() {
  int& picture = page_.items.mapImage;
  if (page_.showsPage() && picture >= 1 && !page_.window->itemProperty(picture, Name).isValid())
    picture = 0;
}

void MapView::placeMap() {
  const int picture = page_.items.mapImage;
  if (!page_.showsPage() || picture < 1)
    return;
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const ProjectReader& project = page_.project;
  const QSizeF size(project.number(BackgroundImageWidth), project.number(BackgroundImageHeight));
  const QPointF topLeft(project.number(BackgroundImageX),
                        project.number(BackgroundImageY) + size.height());
  const PageUpdate update(*page_.window);
  page_.window->setNotificationsEnabled(false); // nobody has dragged it
  page_.window->setItemProperty(picture, Size, size);
  page_.window->setItemProperty(picture, Position, topLeft);
  page_.window->setNotificationsEnabled(true);
}

void MapView::showMap(const QString& file, const QPointF& origin, const QSizeF& size) {
  if (!page_.showsPage() || file.isEmpty())
    return;
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  int& picture = page_.items.mapImage;
  if (picture == 0) {
    // The top left corner is asked for, the lower left one is given.
    picture = page_.window->addPicture(page_.items.mapView, origin.x() / pictureUnit,
                                       (size.height() + origin.y()) / pictureUnit,
                                       size.width() / pictureUnit, size.height() / pictureUnit);
    page_.window->setItemProperty(picture, InMapCoordinates, 1);
    page_.window->attachObserver(picture, &observer_);
    page_.window->setItemProperty(picture, Name, PluginText::tr("Map image"));
    page_.window->setItemProperty(picture, FramePen, QPen(Qt::NoPen));
    page_.window->moveToBackground(picture);
  }
  if (page_.window->itemProperty(picture, PictureFile).toString() != file) {
    page_.window->setItemProperty(picture, PictureFile, file);
    page_.window->redrawItem(picture);
  }
}

/// A new curve of the wells; only its symbols are to be seen.
void MapView::addWells(double symbolSize) {
  Sketra_lib::GraphicsWorkspaceWindow& window = *page_.window;
  page_.project.makeTable(ProjectTable::Well); // brings the positions to the number of wells
  const int curve = window.addCurve(page_.items.mapView, page_.project.wells().positions(), 1, 0);
  page_.items.wells = curve;
  QVariantMap symbol = window.itemProperty(curve, Symbol).toMap();
  symbol["Width"] = symbolSize;
  symbol["Height"] = symbolSize;
  symbol["Type"] = circle;
  window.setItemProperty(curve, Name, PluginText::tr("Wells"));
  window.setItemProperty(curve, CurveStyle, static_cast<int>(SymbolsOnly));
  window.setItemProperty(curve, Symbol, symbol);
  window.setItemProperty(curve, Visible, false);
  window.setItemProperty(curve, Brush, QBrush(Qt::blue));
  window.attachObserver(curve, &observer_);
}

void MapView::showWells() {
  if (!page_.showsPage() || page_.items.wells != 0)
    return;
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  const auto scaleByContents = [this](bool automatic) {
    setOnMap(XAutoScale, automatic);
    setOnMap(YAutoScale, automatic);
  };
  scaleByContents(false); // the new curve must not rescale the map
  addWells(wellSymbol);
  scaleByContents(true);
  page_.window->setItemProperty(page_.items.mapLegend, ListsItems, 1);
  scaleByContents(false);
}

void MapView::markWells() {
  if (!page_.showsPage() || page_.items.wells < 1)
    return;
  if (const PageLock lock(page_.mutex, 0); lock)
    page_.window->setItemProperty(
        page_.items.wells, PointMarks,
        wellMarks(page_.project.wells(), page_.project.count(NumberOfDemandsPerYear)));
}

void MapView::takeOverLoadedPage() {
  if (!page_.showsPage() || page_.items.wells < 1)
    return;
  Sketra_lib::GraphicsWorkspaceWindow& window = *page_.window;
  window.attachObserver(page_.items.projectAddress, &observer_);
  setOnMap(UniformScale, true);
  window.attachObserver(page_.items.mapView, &observer_);
  window.removeItem(page_.items.wells, 0);
  addWells(loadedWellSymbol);
  if (page_.items.mapImage > 0) {
    window.attachObserver(page_.items.mapImage, &observer_);
    window.moveToBackground(page_.items.mapImage);
  }
}

} // namespace TVR
