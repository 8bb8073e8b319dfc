#include "page/window/GraphicsLibrary.h"

#include "page/window/CountedPaints.h"
#include "page/window/PageWindow.h"
#include "support/BareHost.h"

#include <QApplication>
#include <QMainWindow>

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace TVR::Page;

/// A host that keeps windows and knows which is active.
class SmallHost final : public BareHost {
public:
  ~SmallHost() override { qDeleteAll(windows); }

  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return active; }
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) override {
    windows << window->widget();
    active = window;
  }
  QList<QWidget*> workspaceWindows() override { return windows; }

  void close(BrenvikApp::WorkspaceWindow* window) {
    windows.removeOne(window->widget());
    if (active == window)
      active = nullptr;
    delete window->widget();
  }

  QList<QWidget*> windows;
  BrenvikApp::WorkspaceWindow* active = nullptr;
};

struct GraphicsLibraryTest : testing::Test {
  SmallHost host;
  GraphicsLibrary library{host};
};

TEST_F(GraphicsLibraryTest, itIsFoundByItsNameAndItsInterface) {
  QObject* plugin = &library;
  EXPECT_EQ(plugin->objectName(), "Sketra_lib");
  EXPECT_EQ(qobject_cast<Sketra_lib::GraphicsInterface*>(plugin), &library);
}

TEST_F(GraphicsLibraryTest, aNewWindowIsGivenToTheHost) {
  BrenvikApp::WorkspaceWindow* window = library.graphicsWindow("", true);
  ASSERT_TRUE(window);
  EXPECT_EQ(window->windowType(), "GraphicsWindow");
  EXPECT_EQ(host.windows, QList<QWidget*>{window->widget()});
}

TEST_F(GraphicsLibraryTest, withoutLeaveToCreateThereIsNoWindow) {
  EXPECT_EQ(library.graphicsWindow("", false), nullptr);
  EXPECT_EQ(library.graphicsWindow("Plan", false), nullptr);
  EXPECT_TRUE(host.windows.isEmpty());
}

TEST_F(GraphicsLibraryTest, anEmptyNameMeansTheActiveWindow) {
  BrenvikApp::WorkspaceWindow* first = library.graphicsWindow("One", true);
  library.graphicsWindow("Two", true);
  host.active = first;
  EXPECT_EQ(library.graphicsWindow("", true), first);
}

TEST_F(GraphicsLibraryTest, withoutAnActiveWindowAnEmptyNameMeansTheYoungest) {
  library.graphicsWindow("One", true);
  BrenvikApp::WorkspaceWindow* second = library.graphicsWindow("Two", true);
  host.active = nullptr;
  EXPECT_EQ(library.graphicsWindow("", true), second);
}

TEST_F(GraphicsLibraryTest, aNameIsTheTitleOfItsWindow) {
  BrenvikApp::WorkspaceWindow* plan = library.graphicsWindow("Plan", true);
  EXPECT_EQ(plan->widget()->windowTitle(), "Plan");
  library.graphicsWindow("Other", true);
  EXPECT_EQ(library.graphicsWindow("Plan", true), plan);
}

TEST_F(GraphicsLibraryTest, windowsWithoutANameAreNumbered) {
  BrenvikApp::WorkspaceWindow* first = library.graphicsWindow("", true);
  EXPECT_EQ(first->widget()->windowTitle(), "Graphic 1");
  host.close(first);
  EXPECT_EQ(library.graphicsWindow("", true)->widget()->windowTitle(), "Graphic 2");
}

TEST_F(GraphicsLibraryTest, aDestroyedWindowLeavesTheLibrary) {
  host.close(library.graphicsWindow("Plan", true));
  EXPECT_TRUE(library.windows().isEmpty());
  EXPECT_EQ(library.graphicsWindow("Plan", false), nullptr);
}

TEST_F(GraphicsLibraryTest, aWindowMayOutliveTheLibrary) {
  auto shortLived = std::make_unique<GraphicsLibrary>(host);
  BrenvikApp::WorkspaceWindow* window = shortLived->graphicsWindow("", true);
  shortLived.reset();
  host.close(window);
  EXPECT_TRUE(host.windows.isEmpty());
}

TEST_F(GraphicsLibraryTest, refreshingRepaintsAllWindows) {
  QWidget* first = library.graphicsWindow("One", true)->widget();
  QWidget* second = library.graphicsWindow("Two", true)->widget();
  first->show();
  second->show();
  QApplication::processEvents();
  CountedPaints ofFirst(*first);
  CountedPaints ofSecond(*second);
  library.refreshViews();
  QApplication::processEvents();
  EXPECT_EQ(ofFirst.paints, 1);
  EXPECT_EQ(ofSecond.paints, 1);
}

} // namespace
