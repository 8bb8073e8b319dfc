#include "files/RecentProjects.h"
#include "plugin/PagePluginTest.h"
#include "support/SettingsOfTheTest.h"

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class ProjectCommandsTest : public PagePluginTest {
protected:
  QString project(const QString& name) {
    EXPECT_TRUE(BatchProject::doublet().write(path(name)));
    return path(name);
  }

private:
  const SettingsOfTheTest settings_;
};

QStringList paths(const QList<RecentProject>& projects) {
  QStringList result;
  for (const RecentProject& project : projects)
    result << project.path;
  return result;
}

} // namespace

// Recent projects

TEST(RecentProjects, theSeventhPushesOutTheOldest) {
  QList<RecentProject> projects;
  for (int i = 1; i <= 7; ++i)
    projects = withProject(projects, {"title", QString::number(i)});
  EXPECT_EQ(paths(projects), (QStringList{"3", "4", "5", "6", "7"}));
}

TEST(RecentProjects, aKnownPathIsNotAddedAgain) {
  const QList<RecentProject> projects = withProject({{"a", "1"}, {"b", "2"}}, {"new title", "1"});
  EXPECT_EQ(projects, (QList<RecentProject>{{"a", "1"}, {"b", "2"}}));
}

TEST(RecentProjects, aPathIsKnownInAnyCase) {
  const QList<RecentProject> projects =
      withProject({{"a", "/Work/Äcker.tvr"}}, {"a", "/work/äCKER.TVR"});
  EXPECT_EQ(projects, (QList<RecentProject>{{"a", "/Work/Äcker.tvr"}}));
}

TEST_F(ProjectCommandsTest, loadedProjectsAreRememberedInTheSettings) {
  for (int i = 1; i <= 7; ++i)
    plugin.load(project(QStringLiteral("%1.tbat").arg(i)));
  EXPECT_EQ(paths(recentProjects()), (QStringList{path("3.tbat"), path("4.tbat"), path("5.tbat"),
                                                  path("6.tbat"), path("7.tbat")}));
  plugin.load(path("5.tbat"));
  EXPECT_EQ(recentProjects().size(), 5);
  QSettings settings("Norvalt", "Tevrane");
  EXPECT_EQ(settings.beginReadArray("last_projects"), 5);
  settings.setArrayIndex(0);
  EXPECT_EQ(settings.value("path"), QVariant(path("3.tbat")));
  EXPECT_TRUE(settings.contains("title"));
}

TEST(TestPrograms, keepNoSettings) {
  QSettings settings("Norvalt", "Tevrane");
  settings.setValue("test", 1);
  settings.sync();
  EXPECT_TRUE(settings.fileName().startsWith(noSettings)) << settings.fileName().toStdString();
  EXPECT_FALSE(QFileInfo::exists(noSettings));
}

// Loading

TEST_F(ProjectCommandsTest, aLoadedProjectIsTold) {
  const QString file = project("p.tbat");
  const MessageLog log;
  plugin.load(file);
  const QString name = store.value(ProjectName).toString();
  EXPECT_TRUE(log.lines().contains(
      QStringLiteral(
          "Tevrane: <b>TVR project &laquo;%1&raquo; ready to use.</b> read from file: %2")
          .arg(name, file)))
      << log.lines().join('\n').toStdString();
}

TEST_F(ProjectCommandsTest, aProjectThatCanNotBeReadIsNotRemembered) {
  const MessageLog log;
  plugin.load(path("missing.tvr"));
  EXPECT_TRUE(recentProjects().isEmpty());
  EXPECT_EQ(log.lines().filter("ready to use"), QStringList());
}

TEST_F(ProjectCommandsTest, loadingEmptiesThePageFirst) {
  graphic().startup(nullptr);
  ASSERT_GT(items().wells, 0);
  forget();
  plugin.load(project("p.tbat"));
  EXPECT_EQ(page.calls.value(0), "clearContents");
  EXPECT_EQ(items().fieldIds(), PageItems().fieldIds()) << "a batch file brings no page";
}

TEST_F(ProjectCommandsTest, loadingLeavesALockedPageAlone) {
  const LockedElsewhere locked(graphic().mutex());
  plugin.load(project("p.tbat"));
  EXPECT_FALSE(page.calls.contains("clearContents"));
}

TEST_F(ProjectCommandsTest, aProjectComesBackWithItsPage) {
  prepare();
  graphic().startup(nullptr);
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  plugin.save(path("p.tvr"));
  const PageItems saved = items();
  page.page.clear();
  items() = PageItems();
  forget();

  plugin.load(path("p.tvr"));
  EXPECT_TRUE(page.page.contains("CanvasEx")) << page.page.toStdString();
  EXPECT_EQ(items().mapView, saved.mapView);
  EXPECT_EQ(items().summary, saved.summary);
  EXPECT_NE(items().wells, saved.wells) << "the wells of a loaded project are new";
  EXPECT_EQ(page.itemProperty(items().wells, Symbol).toMap()["Width"], QVariant(10.0));
  EXPECT_TRUE(page.calls.contains(QStringLiteral("removeItem %1 0").arg(saved.wells)));
  EXPECT_EQ(page.childItems(items().ratePlot).size(), 2) << "the demand plot is drawn";
}

TEST_F(ProjectCommandsTest, aProjectIsSavedWithThePageThatIsOpenBehindAnotherWindow) {
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  plugin.save(path("p.tvr"));
  EXPECT_TRUE(contentOf(path("p.tvr")).contains("CanvasEx"));
  EXPECT_TRUE(contentOf(path("p.tvr")).contains("plot_field_id"));
}

TEST_F(ProjectCommandsTest, aProjectWithoutAGraphicIsSavedWithoutAPage) {
  host.active = nullptr;
  plugin.save(path("p.tvr"));
  EXPECT_FALSE(contentOf(path("p.tvr")).isEmpty());
  EXPECT_FALSE(contentOf(path("p.tvr")).contains("CanvasEx"));
}

// File types

TEST_F(ProjectCommandsTest, projectFilesAreOpenedByThePlugin) {
  class Provider final : public BrenvikApp::FileTypeProvider {
  public:
    void addFileType(const QString& pattern, const QString& description, QObject* receiver,
                     const char* slot, int flag) override {
      added << QStringLiteral("%1|%2|%3").arg(pattern, description).arg(flag);
      object = receiver;
      EXPECT_STREQ(slot, SLOT(load(const QString&)));
    }
    QStringList added;
    QObject* object = nullptr;
  } provider;
  plugin.addFileTypes(&provider);
  EXPECT_EQ(provider.added, QStringList{"*.tvr|TVR project|0"});
  EXPECT_EQ(provider.object, &plugin);
}

TEST_F(ProjectCommandsTest, aSavedProjectIsARecentOne) {
  plugin.save(path("p.tvr"));
  plugin.save(path("missing/p.tvr"));
  EXPECT_EQ(paths(recentProjects()), QStringList{path("p.tvr")});
}

TEST_F(ProjectCommandsTest, aProjectIsRememberedByItsWholePath) {
  const QString file = project("p.tbat");
  plugin.load(QDir::current().relativeFilePath(file));
  EXPECT_EQ(paths(recentProjects()), QStringList{file});
}
