#pragma once

#include "host/DataObserver.h"
#include "host/TVRInterface.h"
#include "plugin/CancelKeys.h"
#include "plugin/LanguageCommands.h"
#include "plugin/LivePlume.h"
#include "plugin/MainWindowParts.h"
#include "plugin/OutdatedResults.h"
#include "plugin/OutdatedSign.h"
#include "plugin/ProgressPanel.h"
#include "plugin/ProjectCommands.h"
#include "plugin/ResultCommands.h"
#include "plugin/ResultGraphic.h"
#include "plugin/StepExport.h"
#include "plugin/WizardCommands.h"
#include "simulation/SimulationRun.h"

#include <QByteArray>
#include <QEvent>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <shapefil.h>

#include <memory>

namespace BrenvikApp {
class WorkspaceWindow;
}

namespace TVR {

class ProjectDocument;
class ProjectHistory;
class RunView;
class RunWatch;

/// The page that came with a project file.
struct StoredPage {
  QByteArray document;        ///< empty if there is none
  QMap<QString, int> itemIds; ///< of the page's items, by name
};

/// The plug-in object: the only one that the host talks to. Its slots are its face; the work is
/// done by the classes that they call. It works without a host and without a page: a command that
/// needs either then does nothing. Lives on the main thread.
class TVRPlugin : public QObject, public TVRInterface, public DATA::DataObserver {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID TVR_PLUGIN_IID FILE "tvrplugin.json")
  Q_INTERFACES(TVRInterface : BrenvikApp::MainWindowPluginInterface)

public:
  TVRPlugin();
  ~TVRPlugin() override;

  // MainWindowPluginInterface
  void addMenus(BrenvikApp::MainWindowMenuProvider* provider) override;
  void addFileTypes(BrenvikApp::FileTypeProvider* provider) override;
  QList<QToolBar*> addToolBars(QMainWindow* parent) override;
  QList<QDockWidget*> addDockingWindows(QMainWindow* parent) override;
  void connectPlugin(QWidget* widget) override;
  QString pluginType() override;
  QList<QAction*> pluginActions() override;
  void readyToClose(bool& ok) override;
  void workspaceWindowActivated(QWidget* widget) override;
  void triggerChangesOfWindow(QWidget* widget) override;
  void updateMenuForCurrentWindow(QWidget* widget) override;
  void setAppInterface(BrenvikApp::ApplicationInterface* host) override;
  void setPluginDataAndLibPath(const QString& path) override;
  void updateLanguage(const QString& language) override;
  void updatePlugin() override;
  QString created(int depth) override;

  // TVRInterface, as far as it is no slot
  QString language() override;
  QString copyright() override;

  // DataObserver
  void update(DATA::DataObject* object) override;

  /// Escape and End cancel a running simulation, once for each press, however many windows pass it
  /// on. Lets every event through.
  bool eventFilter(QObject* watched, QEvent* event) override;

  bool running() const { return run_.isRunning(); }
  /// Whether the last input was run without a user interface, or is to be.
  bool isBatch() const { return batch_; }
  /// Opens a project or batch file with its page. False, and the user is told, if it can't be read
  /// or a simulation runs.
  bool readProject(const QString& file);
  /// Shows the page of a project that the store holds already.
  void showProject(const StoredPage& page);
  /// Opens the page of the project in the store, if there is a host for one, and starts an
  /// interactive run of it; the user is told why it can't be run.
  void runOnPage(const RunRequest& request);
  /// Runs the project in the store to the end, without a page. Throws what SimulationRun::run does.
  void runWithoutPage(RunRequest request);
  /// Saves the project with its page; false if the file can't be written or has another ending than
  /// ".tvr" and ".tbat".
  bool writeProject(const QString& file);
  /// The run of the simulation, for whoever wants to watch it.
  SimulationRun& simulationRun() { return run_; }
  /// The graphic with the results, for the classes that the slots call.
  ResultGraphic& resultGraphic() { return graphic_; }
  /// The open project, as far as a host with a main window watches over it.
  ProjectDocument& document() { return *document_; }
  /// The steps of the user in it.
  ProjectHistory& history() { return *history_; }
  /// Whether the results still are those of the project.
  const OutdatedResults& outdatedResults() const { return outdated_; }
  /// What a run would come to while the project is being edited.
  LivePlume& livePlume() { return live_; }
  /// The files of its steps that the last run could not write.
  const QStringList& unwrittenFiles() const { return steps_.unwrittenFiles(); }
  /// The wizards of the project, for whoever gives them other pages.
  WizardCommands& wizards() { return wizards_; }
  /// Where an interactive run shows how it goes on; the widgets stay their owner's.
  void setProgressPanel(const ProgressPanel& panel) { progress_ = panel; }

signals:
  void addWindowToWorkspace(BrenvikApp::WorkspaceWindow* window);

public slots:
  void openWelcomeWindow() override;
  void newOpen();
  void load();
  virtual void load(const QString& name);
  void importTVRResult();
  void setGraphicContents(const QByteArray& contents);
  void computeInput(const QString& name, bool batch = false) override;
  void save();
  void save(const QString& file);
  void dxfFileExport();
  void dxfDrawingExport();
  void shapefileExport();
  void writeShapefile(const QString& file, bool isohypsen = true, bool isotherms = true);
  void writeIsolineToShapeFile(int id, int& ishape, SHPHandle hSHP, DBFHandle hDBF,
                               const QString& parameter, const QString& unit);
  void toggleDockingWindow();
  void showGeneralWizard();
  void showEnergieWizard();
  void showWellWizard();
  void showGraphicWizard();
  void showSimulationWizard();
  void showExtendedSimulationWizard();
  void updateCurrentGraphicWindow();
  void startSimulation();
  void cancelSimulation() override;
  void updateIsotherms(double time, int timeout = 1000);
  void updateIsobars();
  void showMap();

protected slots:
  void setMapExtention(double extention);
  void currentGraphicCoordinates(double x, double y, QEvent::Type type, Qt::MouseButton button);
  void setMapScale();
  void setScale(int x = 500, bool holdOrigin = true);
  void showWells();
  void setDefaultWellPositions();
  void showMap(const QString& file, const QPointF& origin, const QSizeF& size);
  void acceptedSimulationWizard();
  void closeSimulationWizard();
  void currentGraphicClosed();
  void setLanguage(const QString& locale, bool force = false);
  void simulationStepFinished(int step, int type, bool error, bool last);
  void simulationFinishedSuccessful();
  void setGerman();
  void setFrench();
  void setEnglish();
  void clearRegistry();
  void setupDemandPlot();
  void shpExport(double t);
  void XYZ_export(int func, double t);

private slots:
  void firstApplicationStart();
  void graphicOperationFinished();
  void calculateIsotherms(double time);

private:
  QString workingDirectory() const;
  void findGraphicsLibrary();

  bool batch_ = false;
  CancelKeys cancelKeys_;
  SimulationRun run_;
  ResultGraphic graphic_;
  StepExport steps_;
  ProgressPanel progress_;
  const std::unique_ptr<RunView> runView_;
  LivePlume live_;
  RunWatch* const runWatch_;                        ///< a child of this object
  const std::unique_ptr<ProjectDocument> document_; ///< among the children of this object
  MainWindowParts parts_;
  WizardCommands wizards_;
  ProjectHistory* const history_; ///< a child of this object
  ProjectCommands projects_;
  OutdatedResults outdated_;
  OutdatedSign outdatedSign_;
  ResultCommands results_;
  LanguageCommands languages_;
};

} // namespace TVR
