#include "host/DataObserver.h"
#include "host/TVRInterface.h"
#include "support/BatchProject.h"

#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PluginLibrary : public testing::Test {
protected:
  QPluginLoader loader{TEVRANE_PLUGIN_FILE};
};

} // namespace

TEST_F(PluginLibrary, metadataStandAsTheHostReadsThem) {
  const QJsonObject metadata = loader.metaData();
  EXPECT_EQ(metadata["IID"].toString(), "venlor.BrenvikApplication.TVRPlugin/1.0");
  EXPECT_EQ(metadata["className"].toString(), "TVRPlugin");
  EXPECT_TRUE(metadata["debug"].isBool());
  EXPECT_FALSE(metadata["debug"].toBool());
  EXPECT_TRUE(metadata["MetaData"].toObject().isEmpty());
  EXPECT_EQ(metadata["version"].toInt() >> 16, 5);
}

TEST_F(PluginLibrary, theTwoEntriesOfAPluginAreAllThatIsExported) {
  QProcess nm;
  nm.start(NM_PROGRAM, {"-D", "--defined-only", TEVRANE_PLUGIN_FILE});
  ASSERT_TRUE(nm.waitForFinished());
  ASSERT_EQ(nm.exitCode(), 0);
  QStringList names;
  for (const QString& line : QString::fromLocal8Bit(nm.readAll()).split('\n', Qt::SkipEmptyParts))
    names << line.section(' ', -1);
  names.sort();
  EXPECT_EQ(names, (QStringList{"qt_plugin_instance", "qt_plugin_query_metadata"}));
}

TEST_F(PluginLibrary, theInstanceIsOneObjectPerProcess) {
  QObject* const first = loader.instance();
  ASSERT_TRUE(first) << loader.errorString().toStdString();
  EXPECT_EQ(loader.instance(), first);
  EXPECT_EQ(QPluginLoader(TEVRANE_PLUGIN_FILE).instance(), first);
  using Entry = QObject* (*)();
  const auto entry =
      reinterpret_cast<Entry>(QLibrary(TEVRANE_PLUGIN_FILE).resolve("qt_plugin_instance"));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry(), first);
  EXPECT_EQ(entry(), first);
}

TEST_F(PluginLibrary, theInstanceAnswersToItsIdentifiers) {
  QObject* const plugin = loader.instance();
  ASSERT_TRUE(plugin) << loader.errorString().toStdString();
  auto* const face = qobject_cast<TVRInterface*>(plugin);
  ASSERT_TRUE(face);
  EXPECT_EQ(qobject_cast<BrenvikApp::MainWindowPluginInterface*>(plugin), face);
  EXPECT_EQ(plugin->qt_metacast("venlor.BrenvikApplication.TVRPlugin/1.0"), face);
  EXPECT_EQ(plugin->qt_metacast("venlor.BrenvikApplication.MainWindowPluginInterface/1.0"), face);
  EXPECT_EQ(plugin->qt_metacast("TVRInterface"), face);
  EXPECT_EQ(plugin->qt_metacast("TVR::TVRPlugin"), plugin);
  EXPECT_TRUE(plugin->qt_metacast("DATA::DataObserver"));
  EXPECT_FALSE(plugin->qt_metacast("venlor.BrenvikApplication.Sketralib/1.0"));
}

TEST_F(PluginLibrary, aHostReachesItThroughItsInterface) {
  auto* const plugin = qobject_cast<TVRInterface*>(loader.instance());
  ASSERT_TRUE(plugin) << loader.errorString().toStdString();
  plugin->setAppInterface(nullptr);
  EXPECT_EQ(plugin->pluginType(), "TVR");
  EXPECT_TRUE(plugin->pluginActions().isEmpty());
}

TEST_F(PluginLibrary, aBatchFileBecomesATable) {
  const QTemporaryDir directory;
  const QString input = directory.filePath("doublet.tbat");
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(input));
  ASSERT_TRUE(loader.instance()) << loader.errorString().toStdString();
  ASSERT_TRUE(QMetaObject::invokeMethod(loader.instance(), "computeInput", Qt::DirectConnection,
                                        Q_ARG(QString, input), Q_ARG(bool, true)));

  QFile table(directory.filePath("doublet.out"));
  ASSERT_TRUE(table.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = table.readAll().trimmed().split('\n');
  EXPECT_EQ(lines.first(), "Time [s]\tTime [a]\tPump\tReturn\t");
  ASSERT_GT(lines.size(), 10);
  const QList<QByteArray> last = lines.last().split('\t');
  EXPECT_EQ(last[0], "31557600");
  EXPECT_EQ(last[1], "1");
  EXPECT_NEAR(last[3].toDouble(), 7, 1) << "water of 10 degrees is cooled by 3 K";
}
