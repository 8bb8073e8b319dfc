#include "data/ProjectFiles.h"
#include "data/WellModel.h"
#include "support/RecordingPage.h"

namespace TVR::Data {
namespace {

using namespace Parameter;

constexpr char page[] = "<!DOCTYPE GraphicWidgetExport>\n"
                        "<CanvasEx Version=\"1.2\">\n"
                        " <Items>\n"
                        "  <Item>a &lt; b</Item>\n"
                        " </Items>\n"
                        "</CanvasEx>\n";

/// A window of the host that is no page.
class PlainWindow final : public BrenvikApp::WorkspaceWindow {
public:
  QWidget* widget() override { return nullptr; }
  QString windowType() const override { return QStringLiteral("Table"); }
};

class ProjectFilePageTest : public ProjectFileTest {
protected:
  /// The pages that the store hands over while a file is read.
  QList<QByteArray> pagesOf(const QString& name) {
    QList<QByteArray> pages;
    const auto connection =
        QObject::connect(&store, &Manager::graphicsWindowContents,
                         [&](const QByteArray& contents) { pages << contents; });
    EXPECT_TRUE(store.read(name, ids));
    QObject::disconnect(connection);
    return pages;
  }
  QList<QByteArray> pagesOfText(const QByteArray& rest) {
    EXPECT_TRUE(writeBytes(path("page.tvr"), "<TVR><__parameter_set/>" + rest + "</TVR>"));
    return pagesOf(path("page.tvr"));
  }
  QDomElement rootWith(const QByteArray& contents) {
    RecordingPage window;
    window.page = contents;
    EXPECT_TRUE(store.write(path("page.tvr"), &window, {{"plot_field_id", 3}}));
    return documentOf(path("page.tvr")).documentElement();
  }
};

TEST_F(ProjectFilePageTest, thePageStandsBelowTheRoot) {
  const QDomElement graphic = rootWith(page).firstChildElement("__graphic");
  EXPECT_EQ(graphic.childNodes().size(), 1);
  EXPECT_EQ(graphic.firstChildElement("CanvasEx").attribute("Version"), "1.2");
}

TEST_F(ProjectFilePageTest, thePageComesBack) {
  rootWith(page);
  EXPECT_EQ(pagesOf(path("page.tvr")), QList<QByteArray>{page});
}

TEST_F(ProjectFilePageTest, thePageComesBackTheSameAgainAndAgain) {
  rootWith(page);
  for (int i = 0; i < 3; ++i) {
    const QList<QByteArray> pages = pagesOf(path("page.tvr"));
    ASSERT_EQ(pages.size(), 1);
    rootWith(pages.first());
    EXPECT_EQ(pages.first(), page);
  }
}

TEST_F(ProjectFilePageTest, idsOfItemsStandAmongTheParameters) {
  const QDomElement found = rootWith(page).firstChildElement("__parameter_set").lastChildElement();
  EXPECT_EQ(found.tagName(), "graphic_ids");
  EXPECT_EQ(found.firstChildElement("plot_field_id").text(), "3");
}

TEST_F(ProjectFilePageTest, idsComeBack) {
  rootWith(page);
  pagesOf(path("page.tvr"));
  EXPECT_EQ(ids, (Ids{{"plot_field_id", 3}}));
}

TEST_F(ProjectFilePageTest, aWindowWithoutPageHasIdsOnly) {
  PlainWindow window;
  ASSERT_TRUE(store.write(path("plain.tvr"), &window, {{"plot_field_id", 3}}));
  const QByteArray bytes = bytesOf(path("plain.tvr"));
  EXPECT_TRUE(bytes.contains("<plot_field_id>3</plot_field_id>"));
  EXPECT_FALSE(bytes.contains("<__graphic"));
}

TEST_F(ProjectFilePageTest, aPageThatIsNoXmlLeavesAnEmptyElement) {
  for (const char* const contents : {"", "no page", "<CanvasEx>"}) {
    EXPECT_FALSE(rootWith(contents).firstChildElement("__graphic").isNull()) << contents;
    EXPECT_TRUE(pagesOf(path("page.tvr")).isEmpty()) << contents;
  }
}

TEST_F(ProjectFilePageTest, withoutACanvasThereIsNoSignal) {
  EXPECT_TRUE(pagesOfText("").isEmpty());
  EXPECT_TRUE(pagesOfText("<__graphic/>").isEmpty());
  EXPECT_TRUE(pagesOfText("<__graphic>text<Other/></__graphic>").isEmpty());
  EXPECT_TRUE(pagesOfText("<CanvasEx/>").isEmpty());
}

TEST_F(ProjectFilePageTest, theCanvasIsFoundAmongOthers) {
  EXPECT_EQ(pagesOfText("<__graphic><Other/><CanvasEx/><CanvasEx a='1'/></__graphic>"),
            QList<QByteArray>{"<!DOCTYPE GraphicWidgetExport>\n<CanvasEx/>\n"});
}

TEST_F(ProjectFilePageTest, thePageOfAnOldFileComesAsWell) {
  ASSERT_TRUE(writeBytes(path("old.tvr"), "<old><__graphic><CanvasEx/></__graphic></old>"));
  EXPECT_EQ(pagesOf(path("old.tvr")).size(), 1);
}

TEST_F(ProjectFilePageTest, theStoreIsFilledWhenThePageComes) {
  rootWith(page);
  bool hasWells = false;
  const auto connection = QObject::connect(&store, &Manager::graphicsWindowContents, [&] {
    hasWells = store.wellModel()->rowCount() == store.wellPositions().size();
  });
  EXPECT_TRUE(store.read(path("page.tvr"), ids));
  QObject::disconnect(connection);
  EXPECT_TRUE(hasWells);
}

} // namespace
} // namespace TVR::Data
