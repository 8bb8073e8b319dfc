#pragma once

#include "plugin/PageControls.h"
#include "project/RunFrame.h"
#include "results/MapView.h"
#include "results/PageAccess.h"
#include "results/PagePictures.h"

#include <QMap>
#include <QMutex>
#include <QObject>

#include <optional>

namespace TVR {

namespace Data {
class Manager;
}

class ProjectReader;
class SimulationRun;
struct Project;

/// The graphic with the project's results: which window it is, the ids of its items, the lock that
/// guards them, and what the commands of the plug-in do with it. Without a host, a graphics library
/// or an active page a command does nothing. Lives on the main thread.
class ResultGraphic : public QObject {
  Q_OBJECT

public:
  using Window = Sketra_lib::GraphicsWorkspaceWindow;

  /// `observer` hears of changes of the page. All three outlive this object.
  ResultGraphic(Data::Manager& store, SimulationRun& run, DATA::DataObserver& observer);

  /// The page of the active window, for whoever changes it. While there is a simulation it is the
  /// project's page, if the active window shows none.
  PageAccess access();
  PageItems& items() { return items_; }
  QRecursiveMutex& mutex() { return mutex_; }
  PageControls& controls() { return controls_; }

  /// Opens the window of the graphics library and prepares its page. A window that shows something
  /// else is handed back as it is. The opened window, or `window` if there is no library.
  Window* startup(Window* window);
  /// Where `startup` would put the wells of a project that nobody gave a place: into the middle of
  /// the map that it opens. None without a window whose page is stored with the project.
  std::optional<QPointF> placeOfNewWells(const ProjectReader& project);
  /// Opens a window with the project's results, unless the one that it has is still there.
  void ensureOpen();
  /// Prepares the page anew for a new project, if one is open.
  void renew();
  /// Lets the user take the wells of the project's window with the mouse.
  void selectWells();
  /// The window with the project's results; null while there is none.
  Window* current() const { return current_; }
  /// The window whose page is stored with the project; null if there is none.
  Window* windowToSave();
  /// Names what is on the active page in the language of the moment; without an active page, what
  /// is on the next one that is activated.
  void retranslate();
  /// Replaces the page by a stored one, which is the project's from then on.
  void setContents(const QByteArray& contents);
  /// The project's page as setContents takes it; empty if none has been prepared.
  QByteArray contents();
  /// Empties the page that would be stored with the project; the project has none then.
  void clear();
  /// Shows a stored page with the ids of its items in the place of what there is; an empty one for
  /// none.
  void show(const QByteArray& contents, const QMap<QString, int>& fieldIds);
  /// Takes up a page that was read with a project.
  void takeOver(const QMap<QString, int>& fieldIds);

  MapView mapView() { return MapView(access(), observer_); }
  /// Shows the map at 1 : `scale`, and the scale in its box.
  void setScale(int scale, bool holdOrigin);
  /// The user's entry in the scale box. Whether the map shows another range then.
  bool setScaleFromBox();
  /// Shows the map so that it is `extension` [m] wide.
  void setMapExtension(double extension);
  /// Shows the map as the project stores it.
  void updateMapView();
  /// Shows on the project's page, if it has one, what differs from a project that was shown before.
  void showChangesSince(const Project& before);
  /// Whether no well lies outside the map as it is shown.
  bool showsAllWells();
  bool showsNoWell();
  /// Makes a view of all wells and of the plume of the last run the project's.
  void fitView();
  /// Before a run: makes a view of all wells the project's if nobody has chosen one yet, as in a
  /// batch file that has not been run, or if no well is in sight.
  void findWells();
  /// After the run: the same with the plume, unless somebody has moved the map meanwhile.
  void followPlume();
  void showCoordinates(double x, double y);
  /// The user presses a button of the mouse on a page.
  void pressed() { dragsProject_ = false; }

  /// The frame of the run that the results on the page come from.
  RunFrame frame() const;
  /// Puts the mesh of the run on the page.
  void takeMesh();
  /// Shows values of the cells during a run; see ResultGrid::showValues.
  void showValues(int dataSet, const std::vector<double>& values);
  /// See Isolines.
  void updateIsotherms(double time, int timeout);
  void updateIsohypses();
  /// Isotherms and summary of a step of a run.
  void calculateIsotherms(double time);
  void setupDemandPlot();
  /// See createSummaryTable.
  QString summary(double time) const;

  /// Another window of the host was activated; null for one that is no workspace window.
  void windowActivated(BrenvikApp::WorkspaceWindow* window);
  /// Follows a change of the page: the notification in progress. Whether a well was moved.
  bool follow();
  /// Whether the scale box follows the ranges of the map.
  void setScaleFollowsView(bool follows) { scaleFollowsView_ = follows; }
  /// The property of the last notification that was followed.
  int lastChangedProperty() const { return lastChangedProperty_; }

public slots:
  /// Writes the project's texts on the active page; opens a page if the project has none.
  void update();
  void forgetCurrent() { current_ = nullptr; }
  /// The user has let go what was changed on a page.
  void noteModified();

signals:
  /// The user has changed a page beyond what the project keeps of it.
  void modified();

private:
  QPolygonF plume(const PageAccess& page) const;
  static Window* activeWindow();
  PageAccess accessTo(Window* window);
  bool isOpen(Window* window) const;
  /// From now on the window is the one with the project's results.
  void adopt(Window* window);
  void retranslate(const PageAccess& page);
  void followMapRange(const PageAccess& page, int property);
  void followMapImage(const PageAccess& page, int property);
  void followWells(const PageAccess& page);
  void writeMapScale(const PageAccess& page, int scale);

  Data::Manager& store_;
  SimulationRun& run_;
  DATA::DataObserver& observer_;
  PageItems items_;
  QRecursiveMutex mutex_; ///< held during every sequence of changes of the page
  PageControls controls_;
  MissingPictures missingPictures_;
  Window* current_ = nullptr;
  bool isStarting_ = false;            ///< a window is being prepared
  bool isInOldLanguage_ = false;       ///< the language changed while no page was active
  std::optional<MapRange> foundWells_; ///< the view that the run began with, if it was found
  bool scaleFollowsView_ = true;
  bool dragsProject_ = false; ///< what is dragged on the page is kept in the project
  int lastChangedProperty_ = 0;
};

} // namespace TVR
