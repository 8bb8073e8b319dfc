#include "desktop/RecentMenu.h"

#include "desktop/MainWindowTest.h"
#include "files/RecentProjects.h"

namespace TVR::Desktop {
namespace {

class RecentMenuTest : public MainWindowTest {
protected:
  QString existing(const QString& name) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }
  QList<QAction*> shown() {
    auto* const menu = window->findChild<RecentMenu*>();
    menu->popup({});
    menu->hide();
    return menu->actions();
  }
};

TEST_F(RecentMenuTest, showsTheYoungestProjectFirst) {
  addRecentProject({"Old & dear", existing("old.tvr")});
  addRecentProject({"", existing("new.tvr")});
  start();
  const QList<QAction*> entries = shown();
  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries[0]->text(), "&1 new.tvr");
  EXPECT_EQ(entries[1]->text(), "&2 Old && dear - old.tvr");
  EXPECT_EQ(entries[1]->toolTip(), path("old.tvr"));
}

TEST_F(RecentMenuTest, opensTheChosenProject) {
  addRecentProject({"a", existing("a.tvr")});
  start();
  shown()[0]->trigger();
  EXPECT_EQ(plugin.calls, QStringList{"load " + path("a.tvr")});
}

TEST_F(RecentMenuTest, opensAProjectOfAnyEnding) {
  addRecentProject({"a", existing("a.old")});
  start();
  shown()[0]->trigger();
  EXPECT_EQ(plugin.calls, QStringList{"load " + path("a.old")});
}

TEST_F(RecentMenuTest, aFileThatIsGoneIsShownAndCannotBeChosen) {
  addRecentProject({"gone", path("gone.tvr")});
  start();
  const QList<QAction*> entries = shown();
  ASSERT_EQ(entries.size(), 1);
  EXPECT_FALSE(entries[0]->isEnabled());
}

TEST_F(RecentMenuTest, isReadAnewEachTimeItOpens) {
  start();
  ASSERT_EQ(shown().size(), 1);
  EXPECT_EQ(shown()[0]->text(), "No projects yet");
  EXPECT_FALSE(shown()[0]->isEnabled());
  addRecentProject({"a", existing("a.tvr")});
  ASSERT_EQ(shown().size(), 1);
  EXPECT_EQ(shown()[0]->text(), "&1 a - a.tvr");
}

} // namespace
} // namespace TVR::Desktop
