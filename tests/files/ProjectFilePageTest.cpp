#include "files/ProjectFiles.h"
#include "support/RecordingPage.h"
#include "tables/WellModel.h"

#include <QHash>

#include <set>

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
  void writeWithResults() {
    RecordingPage window;
    window.page = page;
    EXPECT_TRUE(store.write(path("page.tvr"), &window, {{"data_field_id", 9}}));
  }

  /// A file with results of two wells around (20, 40) in a flow to the south, and `frame`.
  static QByteArray resultsOfATurnedProject(const QByteArray& frame) {
    return "<TVR><__application_version><__version>2.0.7</__version></__application_version>"
           "<__parameter_set>" +
           table("well_model", 2, 5,
                 cell(0, 1, "10") + cell(0, 2, "30") + cell(1, 1, "30") + cell(1, 2, "50")) +
           parameter("groundwater_flow_direction", "180") + parameter("groundwater_gradient", "1") +
           "<graphic_ids><data_field_id>9</data_field_id></graphic_ids></__parameter_set>" + frame +
           "</TVR>";
  }
  void expectFrameOfParameters() {
    ASSERT_TRUE(store.resultFrame());
    EXPECT_EQ(store.resultFrame()->origin, QPointF(20, 40));
    EXPECT_EQ(store.resultFrame()->flowDirection, 180);
    EXPECT_TRUE(store.resultFrame()->hasRegionalFlow);
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

TEST_F(ProjectFilePageTest, twoSavesAreEqualByteByByte) {
  const QByteArray first = "<CanvasEx a='1' b='2' c='3' d='4' e='5' f='6' g='7' Version='1'/>";
  std::set<QByteArray> saves;
  for (int seed = 1; seed < 20; ++seed) {
    qSetGlobalQHashSeed(seed); // each run of the program has another one
    rootWith(first);
    saves.insert(bytesOf(path("page.tvr")));
  }
  qSetGlobalQHashSeed(-1);
  EXPECT_EQ(saves.size(), 1u);
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

// The frame of the results

TEST_F(ProjectFilePageTest, theFrameOfTheResultsComesBackWhateverWasEditedAfterTheRun) {
  const RunFrame frame{{681020.123456789, 1.0 / 3}, 123.4, true, 24};
  store.setResultFrame(frame);
  store.setValue(GroundwaterFlowDirection, 20.0);
  writeWithResults();
  store.reset();
  EXPECT_FALSE(store.resultFrame());
  ASSERT_TRUE(store.read(path("page.tvr"), ids));
  ASSERT_TRUE(store.resultFrame());
  EXPECT_EQ(store.resultFrame()->origin.x(), frame.origin.x());
  EXPECT_EQ(store.resultFrame()->origin.y(), frame.origin.y());
  EXPECT_EQ(store.resultFrame()->flowDirection, 123.4);
  EXPECT_TRUE(store.resultFrame()->hasRegionalFlow);
  EXPECT_EQ(store.resultFrame()->cycleLength, 24);
  EXPECT_EQ(store.value(GroundwaterFlowDirection).toDouble(), 20);
}

TEST_F(ProjectFilePageTest, aRunWithoutAFlowComesBackSo) {
  store.setResultFrame({{1, 2}, 20, false, 12});
  store.setValue(GroundwaterGradient, 0.3);
  writeWithResults();
  ASSERT_TRUE(store.read(path("page.tvr"), ids));
  EXPECT_FALSE(store.resultFrame()->hasRegionalFlow);
}

TEST_F(ProjectFilePageTest, resultsWithoutAFrameLieAsTheParametersOfTheirFileSay) {
  ASSERT_TRUE(readText(resultsOfATurnedProject("")));
  expectFrameOfParameters();
}

TEST_F(ProjectFilePageTest, aFrameOfNonsenseLeavesThatOfTheParameters) {
  ASSERT_TRUE(readText(resultsOfATurnedProject(
      "<__result_frame><origin_x>inf</origin_x><origin_y>here</origin_y><flow_direction/>"
      "<regional_flow>true</regional_flow><cycle_length>1e300</cycle_length></__result_frame>")));
  expectFrameOfParameters();
}

TEST_F(ProjectFilePageTest, aPageWithoutResultsHasNoFrame) {
  store.setResultFrame({});
  EXPECT_TRUE(rootWith(page).firstChildElement("__result_frame").isNull());
  ASSERT_TRUE(store.read(path("page.tvr"), ids));
  EXPECT_FALSE(store.resultFrame());
}

} // namespace
} // namespace TVR::Data
