#include "desktop/MainWindowTest.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace TVR::Desktop {
namespace {

class MenusTest : public MainWindowTest {
protected:
  /// What stands in a menu: names of own actions and menus, texts of the plug-in's, "-".
  QStringList entries(const char* name) const {
    QStringList texts;
    for (const QAction* entry : window->findChild<QMenu*>(name)->actions()) {
      if (entry->isSeparator())
        texts << "-";
      else if (entry->menu())
        texts << entry->menu()->objectName();
      else
        texts << (entry->objectName().isEmpty() ? entry->text() : entry->objectName());
    }
    return texts;
  }
};

TEST_F(MenusTest, standInTheBarInTheUsualOrder) {
  start();
  QStringList titles;
  for (const QAction* entry : window->menuBar()->actions())
    titles << entry->text();
  EXPECT_EQ(titles,
            (QStringList{"&File", "&Edit", "&View", "Tev&rane", "Se&ttings", "&Window", "&Help"}));
}

TEST_F(MenusTest, thePluginsFileCommandsStandWhereAUserLooksForThem) {
  start();
  EXPECT_EQ(entries("menu_file"),
            (QStringList{"menu_new", "-", "open &Project", "save", "import", "save", "menu_recent",
                         "-", "menu_export", "to &Shapefile", "-", "page_setup", "print_preview",
                         "print", "-", "close_window", "quit"}));
  EXPECT_EQ(window->findChild<QMenu*>("menu_file")->actions()[3], &plugin.save);
}

TEST_F(MenusTest, theOtherMenusHoldTheOwnCommandsAndThoseOfThePlugin) {
  start();
  EXPECT_EQ(entries("menu_new"), QStringList{"new"});
  EXPECT_EQ(entries("menu_export"), (QStringList{"export_pdf", "export_png", "export_svg", "-",
                                                 "export_isolines", "export_drawing"}));
  EXPECT_EQ(entries("menu_edit"), (QStringList{"undo", "redo", "-", "copy_page"}));
  EXPECT_EQ(entries("menu_view"),
            (QStringList{"zoom_in", "zoom_out", "whole_page", "page_width", "actual_size", "-",
                         "tool_bar", "dock", "-", "full_screen"}));
  EXPECT_EQ(entries("menu_plugin"), (QStringList{"welcome", "-", "run", "cancel_run"}));
  EXPECT_EQ(entries("menu_settings"), QStringList{"clear"});
  EXPECT_EQ(entries("menu_window"), (QStringList{"next_window", "previous_window", "-"}));
  EXPECT_EQ(entries("menu_help"),
            (QStringList{"guide", "report_problem", "-", "about", "about_qt"}));
}

TEST_F(MenusTest, theWindowMenuListsTheWindowsAndGoesToTheChosenOne) {
  start();
  addWindow("Welcome & more");
  Page::PageWindow* const page = addPage();
  EXPECT_EQ(entries("menu_window").mid(3), (QStringList{"&1 Welcome && more", "&2 Graphic 1"}));
  const QList<QAction*> windows = window->findChild<QMenu*>("menu_window")->actions().mid(3);
  EXPECT_FALSE(windows[0]->isChecked());
  EXPECT_TRUE(windows[1]->isChecked());
  windows[0]->trigger();
  EXPECT_NE(workspace().currentWidget(), page);
  EXPECT_TRUE(window->findChild<QMenu*>("menu_window")->actions()[3]->isChecked());
}

TEST_F(MenusTest, noLetterOfAMenuIsGivenTwice) {
  start();
  QList<const QWidget*> menus{window->menuBar()};
  for (const QMenu* menu : window->findChildren<QMenu*>())
    menus.append(menu);
  for (const QWidget* menu : menus) {
    QSet<QString> letters;
    for (const QAction* entry : menu->actions()) {
      const QString letter = QKeySequence::mnemonic(entry->text()).toString();
      EXPECT_TRUE(letter.isEmpty() || !letters.contains(letter))
          << entry->text().toStdString() << " in " << menu->objectName().toStdString();
      letters.insert(letter);
    }
  }
}

TEST_F(MenusTest, noMenuOfTheBarIsOpenedByAKeyThatOpensOrSavesAProject) {
  start();
  for (const QAction* entry : window->menuBar()->actions()) {
    const QString key = QKeySequence::mnemonic(entry->text()).toString();
    EXPECT_FALSE(key.isEmpty()) << entry->text().toStdString();
    EXPECT_TRUE(key != "Alt+O" && key != "Alt+S") << entry->text().toStdString();
  }
}

} // namespace
} // namespace TVR::Desktop
