#include "plugin/ResultGraphic.h"

#include "design/ParameterId.h"
#include "files/BatchFile.h"
#include "messages/PluginText.h"
#include "plugin/AppInterface.h"
#include "project/UserWork.h"
#include "results/DemandPlot.h"
#include "results/IsolineWalk.h"
#include "results/Isolines.h"
#include "results/PointTable.h"
#include "results/ResultGrid.h"
#include "results/ResultPage.h"
#include "results/SummaryTable.h"
#include "simulation/SimulationRun.h"
#include "store/Manager.h"
#include "store/UserStep.h"
#include "tables/WellModel.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVR {

using namespace Parameter;
using namespace Sketra_lib::Property;

namespace {

constexpr int isothermPatience = 10; // [ms] during a run, which rather drops an update than waits

ResultGraphic::Window* pageOf(BrenvikApp::WorkspaceWindow* window) {
  return dynamic_cast<ResultGraphic::Window*>(window);
}

ResultGraphic::Window* windowOfLibrary() {
  Sketra_lib::GraphicsInterface* const graphics = AppInterface::graphics();
  return graphics ? pageOf(graphics->graphicsWindow(QString(), true)) : nullptr;
}

} // namespace

ResultGraphic::ResultGraphic(Data::Manager& store, SimulationRun& run, DATA::DataObserver& observer)
    : store_(store), run_(run), observer_(observer) {}

ResultGraphic::Window* ResultGraphic::activeWindow() {
  BrenvikApp::ApplicationInterface* const host = AppInterface::instance();
  return host ? pageOf(host->currentWorkspaceWindow()) : nullptr;
}

PageAccess ResultGraphic::access() {
  const PageAccess active = accessTo(activeWindow());
  const bool isBehind = run_.simulation() && !active.showsPage() && isOpen(current_);
  return isBehind ? accessTo(current_) : active;
}

PageAccess ResultGraphic::accessTo(Window* window) {
  return {window, AppInterface::graphics(), store_, items_, mutex_, store_.fileName()};
}

bool ResultGraphic::isOpen(Window* window) const {
  BrenvikApp::ApplicationInterface* const host = AppInterface::instance();
  return window && host && host->workspaceWindows().contains(window->widget());
}

void ResultGraphic::adopt(Window* window) {
  current_ = window;
  connect(window->widget(), &QObject::destroyed, this, &ResultGraphic::forgetCurrent,
          Qt::UniqueConnection);
}

std::optional<QPointF> ResultGraphic::placeOfNewWells(const ProjectReader& project) {
  Window* const window = windowToSave();
  if (!window)
    return std::nullopt;
  const QSizeF area = MapView(accessTo(window), observer_).area();
  return openedRange(project, templateMap(), area).centre();
}

ResultGraphic::Window* ResultGraphic::startup(Window* window) {
  if (window && window->windowType() != pageWindowType)
    return window;
  const Data::ProgramWork work(store_);
  if (Window* const opened = windowOfLibrary()) {
    window = opened;
    isStarting_ = true;
    ResultPage(accessTo(window), observer_).dress(run_.cycleLength());
    update();
    isStarting_ = false;
    adopt(window);
  }
  updateMapView();
  mapView().setDefaultWellPositions();
  mapView().showMap();
  mapView().showWells();
  mapView().markWells();
  if (access().showsPage())
    missingPictures_.tell(store_);
  return window;
}

void ResultGraphic::update() {
  const PageAccess page = access();
  if (page.showsPage()) {
    ResultPage(page, observer_).fillTexts(summary(0.0));
    mapView().markWells();
  } else if (!isStarting_)
    ensureOpen();
}

void ResultGraphic::ensureOpen() {
  if (!isOpen(current_))
    startup(nullptr);
}

void ResultGraphic::renew() {
  if (windowToSave())
    startup(nullptr);
}

void ResultGraphic::selectWells() {
  if (current_ && items_.wells > 0)
    current_->setCurrentItem(items_.wells);
}

ResultGraphic::Window* ResultGraphic::windowToSave() {
  const PageAccess page = access();
  if (page.showsPage())
    return page.window;
  return isOpen(current_) ? current_ : nullptr;
}

void ResultGraphic::retranslate() {
  const PageAccess page = access();
  isInOldLanguage_ = !page.showsPage();
  if (!isInOldLanguage_)
    retranslate(page);
}

void ResultGraphic::retranslate(const PageAccess& page) {
  const Data::ProgramWork work(store_);
  ResultPage(page, observer_).retranslate(summary(-1.0));
  if (const PageLock lock(page.mutex, 0); lock)
    Isolines(page, frame()).retranslate();
  MapView(page, observer_).markWells();
}

void ResultGraphic::setContents(const QByteArray& contents) {
  const PageLock lock(mutex_);
  if (!lock)
    return;
  if (Window* const window = windowOfLibrary()) {
    window->setContents(contents);
    adopt(window);
  }
}

QByteArray ResultGraphic::contents() {
  const Window* const window = items_.mapView > 0 ? windowToSave() : nullptr;
  return window ? window->contents() : QByteArray();
}

void ResultGraphic::clear() {
  Window* const window = windowToSave();
  if (!window)
    return;
  if (const PageLock lock(mutex_); lock) {
    window->clearContents();
    items_ = PageItems();
    forgetCurrent();
  }
}

void ResultGraphic::show(const QByteArray& contents, const QMap<QString, int>& fieldIds) {
  clear();
  if (!contents.isEmpty())
    setContents(contents);
  takeOver(fieldIds);
}

void ResultGraphic::takeOver(const QMap<QString, int>& fieldIds) {
  items_.setFieldIds(fieldIds);
  mapView().takeOverLoadedPage();
  if (items_.ratePlot > 0)
    setupDemandPlot();
}

void ResultGraphic::setScale(int scale, bool holdOrigin) {
  if (!access().showsPage())
    return;
  mapView().setScale(scale, holdOrigin);
  controls_.showScale(scale);
}

bool ResultGraphic::setScaleFromBox() {
  if (!controls_.scale || controls_.scale->value() < 1 || !access().showsPage())
    return false;
  const MapRange before = mapView().range();
  setScale(controls_.scale->value(), true);
  return !(mapView().range() == before);
}

void ResultGraphic::setMapExtension(double extension) {
  if (const auto scale = mapView().scaleOfExtension(extension))
    setScale(*scale, true);
}

void ResultGraphic::updateMapView() {
  if (store_.value(ViewUseExtension).toBool())
    setMapExtension(store_.value(ViewHorizontalExtension).toDouble());
  else
    setScale(store_.count(ViewScale), true);
  mapView().moveToOrigin(store_.value(ViewX).toDouble(), store_.value(ViewY).toDouble());
}

void ResultGraphic::showChangesSince(const Project& before) {
  Window* const window = windowToSave();
  if (!window)
    return;
  store_.wellModel(); // the map shows all wells
  const PageAccess page = accessTo(window);
  ResultPage(page, observer_).fillTexts(summary(-1.0)); // of the whole run
  const auto differ = [this, &before](std::initializer_list<int> ids) {
    return std::any_of(ids.begin(), ids.end(), [this, &before](int id) {
      return !isSameEntry(id, before.values.value(id), store_.stored(id));
    });
  };
  if (differ({BackgroundImage, BackgroundImageFile, BackgroundImageX, BackgroundImageY,
              BackgroundImageWidth, BackgroundImageHeight})) {
    MapView(page, observer_).showMap();
    MapView(page, observer_).placeMap();
  }
  if (differ({ViewUseExtension, ViewHorizontalExtension, ViewScale, ViewX, ViewY}))
    updateMapView();
  MapView(page, observer_).markWells();
}

bool ResultGraphic::showsAllWells() {
  const MapRange range = mapView().range();
  const QVector<QPointF>& wells = store_.wellPositions();
  return std::all_of(wells.begin(), wells.end(),
                     [&range](const QPointF& well) { return range.contains(well); });
}

bool ResultGraphic::showsNoWell() {
  const MapRange range = mapView().range();
  const QVector<QPointF>& wells = store_.wellPositions();
  return std::none_of(wells.begin(), wells.end(),
                      [&range](const QPointF& well) { return range.contains(well); });
}

/// Where the temperature has changed: the points of the isotherms, or, if the change is too weak
/// for any, the cells that it is strongest in.
QPolygonF ResultGraphic::plume(const PageAccess& page) const {
  QPolygonF places;
  if (selectDataSet(page, Temperature)) {
    for (const int id : isolineIds(page))
      if (const Isoline line = readIsoline(*page.window, id); std::abs(line.level) > leastChange)
        places += line.points;
    if (places.isEmpty() && run_.mesh())
      places = placesOfChange(ResultGrid(page).values(),
                              PointTable::cellPositions(*run_.mesh(), frame()));
  }
  selectDataSet(page, Drawdowns);
  return places;
}

void ResultGraphic::fitView() {
  const PageAccess page = access();
  QPolygonF content = store_.wellPositions();
  if (!page.showsPage() || content.isEmpty())
    return;
  content += plume(page);
  const MapPlace place = fittedMap(content.boundingRect(), mapView().area());
  const Data::ProgramWork work(store_);
  store_.setValue(ViewUseExtension, false);
  store_.setValue(ViewScale, place.scale);
  store_.setValue(ViewX, place.origin.x());
  store_.setValue(ViewY, place.origin.y());
  updateMapView();
}

void ResultGraphic::findWells() {
  foundWells_.reset();
  const bool hasNoView = !store_.resultFrame() && Data::BatchFile::isBatchFile(store_.fileName());
  if (!access().showsPage() || (!hasNoView && !showsNoWell()))
    return;
  fitView();
  foundWells_ = mapView().range();
}

void ResultGraphic::followPlume() {
  if (foundWells_ && access().showsPage() && mapView().range() == *foundWells_)
    fitView();
  foundWells_.reset();
}

void ResultGraphic::showCoordinates(double x, double y) {
  if (access().showsPage())
    controls_.showCoordinates(x, y);
}

RunFrame ResultGraphic::frame() const {
  return store_.resultFrame().value_or(RunFrame());
}

void ResultGraphic::takeMesh() {
  const PageAccess page = access();
  if (page.showsPage() && run_.mesh())
    ResultGrid(page).takeMesh(*run_.mesh(), frame());
}

void ResultGraphic::showValues(int dataSet, const std::vector<double>& values) {
  ResultGrid(access()).showValues(dataSet, values);
}

void ResultGraphic::updateIsotherms(double time, int timeout) {
  const Data::ProgramWork work(store_);
  if (Isolines(access(), frame()).updateIsotherms(time, timeout))
    PageControls::setEnabled(controls_.exportShapefile, true);
}

void ResultGraphic::updateIsohypses() {
  if (Isolines(access(), frame()).updateIsohypses())
    PageControls::setEnabled(controls_.exportShapefile, true);
}

void ResultGraphic::calculateIsotherms(double time) {
  if (!run_.isRunning() || items_.results < 1)
    return;
  updateIsotherms(time, isothermPatience);
  if (const PageLock lock(mutex_, 0); lock)
    showSummary(access(), summary(time));
}

void ResultGraphic::setupDemandPlot() {
  int months = run_.cycleLength();
  showDemandPlot(access(), months);
  mapView().markWells();
  run_.setCycleLength(months);
}

QString ResultGraphic::summary(double time) const {
  return createSummaryTable(store_, frame(), run_.outputTimes().times, time, -1.0);
}

void ResultGraphic::writeMapScale(const PageAccess& page, int scale) {
  if (const PageLock lock(page.mutex); lock)
    page.window->setItemProperty(items_.mapScale, Html, mapScaleText(scale));
}

void ResultGraphic::windowActivated(BrenvikApp::WorkspaceWindow* window) {
  const bool isGraphic = window && window->windowType() == pageWindowType;
  PageControls::setEnabled(controls_.scale, isGraphic);
  if (isGraphic) {
    controls_.showScale(store_.count(ViewScale));
    if (Window* const page = pageOf(window)) {
      if (std::exchange(isInOldLanguage_, false))
        retranslate(accessTo(page));
      writeMapScale(accessTo(page), store_.count(ViewScale));
    }
  }
  PageControls::setEnabled(controls_.coordinates, isGraphic);
  // A window whose page is a face of something larger is told to forget its observer.
  if (isGraphic && current_ && dynamic_cast<void*>(current_) != static_cast<void*>(current_))
    current_->detachObserver(items_.projectAddress, &observer_);
  PageControls::setEnabled(controls_.exportShapefile, isGraphic && items_.results > 0);
}

bool ResultGraphic::follow() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()) || !QApplication::activeWindow())
    return false;
  const PageAccess page = accessTo(activeWindow());
  if (!page.window)
    return false;
  const int item = page.window->lastChangedItem();
  const int property = page.window->lastChangedProperty();
  if (scaleFollowsView_ && items_.mapView >= 1 && item == items_.mapView)
    followMapRange(page, property);
  const bool movesWell =
      scaleFollowsView_ && items_.wells >= 1 && item == items_.wells && property == PointMoved;
  if (movesWell)
    followWells(page);
  if (items_.mapImage >= 1 && item == items_.mapImage)
    followMapImage(page, property);
  lastChangedProperty_ = property;
  return movesWell;
}

/// Wells stand where the user has dragged them.
void ResultGraphic::followWells(const PageAccess& page) {
  const auto places = page.window->itemProperty(items_.wells, Points).value<QPolygonF>();
  const QVector<QPointF>& wells = store_.wellPositions();
  std::vector<WellModel::Cell> cells;
  for (int row = 0; row < std::min(places.size(), wells.size()); ++row)
    if (places[row] != wells[row]) {
      cells.push_back({row, WellModel::X, places[row].x()});
      cells.push_back({row, WellModel::Y, places[row].y()});
    }
  if (cells.empty())
    return;
  const Data::UserStep step(store_, {.text = PluginText::tr("Move wells"), .goesOn = true});
  store_.wellModel()->setCells(cells);
  dragsProject_ = true;
}

void ResultGraphic::noteModified() {
  if (!std::exchange(dragsProject_, false))
    emit modified();
}

void ResultGraphic::followMapRange(const PageAccess& page, int property) {
  const bool isX = property == XMinimum || property == XMaximum;
  const bool isY = property == YMinimum || property == YMaximum;
  if (!isX && !isY)
    return;
  const MapView map(page, observer_);
  const MapScales scales = scalesOfRange(map.range(), map.area());
  if (!controls_.scale || controls_.scale->value() == scales.x ||
      controls_.scale->value() == scales.y)
    return;
  const int scale = isX ? scales.x : scales.y;
  controls_.showScale(scale);
  writeMapScale(page, scale);
}

void ResultGraphic::followMapImage(const PageAccess& page, int property) {
  if (property != Position && property != Size)
    return;
  const Data::UserStep step(store_, {.text = PluginText::tr("Move map image"), .goesOn = true});
  dragsProject_ = true;
  const QSizeF size = sizeFrom(page.window->itemProperty(items_.mapImage, Size));
  if (property == Position) {
    const QPointF topLeft = page.window->itemProperty(items_.mapImage, Position).toPointF();
    store_.setValue(BackgroundImageX, topLeft.x());
    store_.setValue(BackgroundImageY, topLeft.y() - size.height());
  } else {
    store_.setValue(BackgroundImageWidth, size.width());
    store_.setValue(BackgroundImageHeight, size.height());
  }
}

} // namespace TVR
