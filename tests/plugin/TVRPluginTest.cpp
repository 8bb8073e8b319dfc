#include "plugin/PluginTest.h"

#include <QMetaMethod>
#include <QTextCodec>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

using TVRPluginTest = PluginTest;

/// Connects the start of simulations with a plug-in that is not complete yet: a new plug-in tells
/// its host the language first of all.
class ConnectingHost final : public BareHost {
public:
  void setHostLanguage(const QString&) override {
    if (auto* const plugin = dynamic_cast<TVRPlugin*>(AppInterface::plugin()))
      hasConnected |= static_cast<bool>(
          QObject::connect(Data::Manager::instance(), &Data::Manager::startSimulation, plugin,
                           &TVRPlugin::startSimulation, Qt::UniqueConnection));
  }
  bool hasConnected = false;
};

QStringList methodsOf(const QMetaObject& meta) {
  QStringList methods;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    const QMetaMethod method = meta.method(i);
    if (method.attributes() & QMetaMethod::Cloned)
      continue; // the same method with its default arguments left out
    const char* kind = method.methodType() == QMetaMethod::Signal  ? "signal "
                       : method.access() == QMetaMethod::Public    ? "public "
                       : method.access() == QMetaMethod::Protected ? "protected "
                                                                   : "private ";
    methods << kind + QString::fromLatin1(method.methodSignature());
  }
  return methods;
}

} // namespace

// The face of the object

TEST_F(TVRPluginTest, hasOneSignalAndItsSlotsInTheirOrder) {
  EXPECT_EQ(methodsOf(TVRPlugin::staticMetaObject),
            (QStringList{
                "signal addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)",
                "public openWelcomeWindow()",
                "public newOpen()",
                "public load()",
                "public load(QString)",
                "public importTVRResult()",
                "public setGraphicContents(QByteArray)",
                "public computeInput(QString,bool)",
                "public save()",
                "public save(QString)",
                "public dxfFileExport()",
                "public dxfDrawingExport()",
                "public shapefileExport()",
                "public writeShapefile(QString,bool,bool)",
                "public writeIsolineToShapeFile(int,int&,SHPHandle,DBFHandle,QString,QString)",
                "public toggleDockingWindow()",
                "public showGeneralWizard()",
                "public showEnergieWizard()",
                "public showWellWizard()",
                "public showGraphicWizard()",
                "public showSimulationWizard()",
                "public showExtendedSimulationWizard()",
                "public updateCurrentGraphicWindow()",
                "public startSimulation()",
                "public cancelSimulation()",
                "public updateIsotherms(double,int)",
                "public updateIsobars()",
                "public showMap()",
                "protected setMapExtention(double)",
                "protected currentGraphicCoordinates(double,double,QEvent::Type,Qt::MouseButton)",
                "protected setMapScale()",
                "protected setScale(int,bool)",
                "protected showWells()",
                "protected setDefaultWellPositions()",
                "protected showMap(QString,QPointF,QSizeF)",
                "protected acceptedSimulationWizard()",
                "protected closeSimulationWizard()",
                "protected currentGraphicClosed()",
                "protected setLanguage(QString,bool)",
                "protected simulationStepFinished(int,int,bool,bool)",
                "protected simulationFinishedSuccessful()",
                "protected setGerman()",
                "protected setFrench()",
                "protected setEnglish()",
                "protected clearRegistry()",
                "protected setupDemandPlot()",
                "protected shpExport(double)",
                "protected XYZ_export(int,double)",
                "private firstApplicationStart()",
                "private graphicOperationFinished()",
                "private calculateIsotherms(double)",
            }));
}

TEST_F(TVRPluginTest, argumentsWithDefaultsMayBeLeftOut) {
  const QMetaObject& meta = TVRPlugin::staticMetaObject;
  for (const char* signature :
       {"computeInput(QString)", "writeShapefile(QString,bool)", "writeShapefile(QString)",
        "updateIsotherms(double)", "setScale(int)", "setScale()", "setLanguage(QString)"})
    EXPECT_GE(meta.indexOfSlot(signature), 0) << signature;
}

TEST_F(TVRPluginTest, answersToItsNamesAndIdentifiers) {
  TVRPlugin plugin;
  TVRInterface* const face = &plugin;
  DATA::DataObserver* const observer = &plugin;
  EXPECT_EQ(plugin.qt_metacast("TVR::TVRPlugin"), &plugin);
  EXPECT_EQ(plugin.qt_metacast("TVRInterface"), face);
  EXPECT_EQ(plugin.qt_metacast("DATA::DataObserver"), observer);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.TVRPlugin/1.0"), face);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.MainWindowPluginInterface/1.0"), face);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.WorkspaceWindow/1.0"), nullptr);
}

TEST_F(TVRPluginTest, tellsItsTypeAndHasNoActionsOfItsOwn) {
  TVRPlugin plugin;
  EXPECT_EQ(plugin.pluginType(), "TVR");
  EXPECT_TRUE(plugin.pluginActions().isEmpty());
}

TEST_F(TVRPluginTest, beginsIdleAndNotInABatch) {
  TVRPlugin plugin;
  EXPECT_FALSE(plugin.running());
  EXPECT_FALSE(plugin.isBatch());
  EXPECT_EQ(plugin.simulationRun().simulation(), nullptr);
  EXPECT_EQ(plugin.simulationRun().cycleLength(), 12);
}

TEST_F(TVRPluginTest, makesUtf8TheCodecOfTheLocale) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
  TVRPlugin plugin;
  EXPECT_EQ(QTextCodec::codecForLocale()->name(), "UTF-8");
}

// Ways to the host

TEST_F(TVRPluginTest, isKnownAsThePluginWhileItLives) {
  {
    TVRPlugin plugin;
    EXPECT_EQ(AppInterface::plugin(), static_cast<TVRInterface*>(&plugin));
  }
  EXPECT_EQ(AppInterface::plugin(), nullptr);
}

TEST_F(TVRPluginTest, isKnownAsThePluginOnceItIsGivenAHostOrNone) {
  TVRPlugin plugin;
  Host host;
  for (Host* const given : {&host, static_cast<Host*>(nullptr)}) {
    AppInterface::setPlugin(nullptr);
    plugin.setAppInterface(given);
    EXPECT_EQ(AppInterface::plugin(), static_cast<TVRInterface*>(&plugin));
  }
}

TEST_F(TVRPluginTest, startsASimulationOnceAlsoForAHostThatConnectedItBefore) {
  ConnectingHost host;
  AppInterface::setApplicationInterface(&host);
  TVRPlugin plugin;
  ASSERT_TRUE(host.hasConnected);
  prepare(BatchProject().set("installation", "number_of_wells", 0));
  const MessageLog log;
  store.setValue(SimulationUpToDate, false);
  EXPECT_EQ(log.lines().filter("No well has a rate.").size(), 1);
}

TEST_F(TVRPluginTest, worksWithoutAHost) {
  TVRPlugin plugin;
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(AppInterface::instance(), nullptr);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
  EXPECT_EQ(AppInterface::plugin(), static_cast<TVRInterface*>(&plugin));
}

TEST_F(TVRPluginTest, looksUpTheGraphicsLibraryOfItsHost) {
  TVRPlugin plugin;
  Host host;
  Library library;
  host.library = &library;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::instance(), &host);
  EXPECT_EQ(AppInterface::graphics(), &library);
  EXPECT_EQ(host.asked, QStringList{"Sketra_lib"});
}

TEST_F(TVRPluginTest, aHostWithoutTheGraphicsLibraryLeavesItNull) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::instance(), &host);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
}

TEST_F(TVRPluginTest, aPluginThatIsNoGraphicsLibraryIsNotTaken) {
  TVRPlugin plugin;
  Host host;
  QObject other;
  host.library = &other;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
}

TEST_F(TVRPluginTest, theLanguageIsTheParameter) {
  TVRPlugin plugin;
  for (const char* language : {"fr", "de", "en"}) {
    store.setValue(GuiLanguage, language);
    EXPECT_EQ(plugin.language(), language);
  }
}

TEST_F(TVRPluginTest, choosingALanguageTellsStoreAndHost) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  for (const auto& [slot, language] : {std::pair{"setGerman", "de"}, std::pair{"setFrench", "fr"},
                                       std::pair{"setEnglish", "en"}}) {
    ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, slot));
    EXPECT_EQ(plugin.language(), language);
    EXPECT_EQ(host.languages.value(host.languages.size() - 1), language);
  }
}
