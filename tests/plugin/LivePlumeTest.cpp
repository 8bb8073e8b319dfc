#include "plugin/LivePlume.h"

#include "gui/DesignPropertyEditor.h"
#include "messages/UserMessages.h"
#include "page/painting/PageExport.h"
#include "page/window/ShownPreview.h"
#include "plugin/WholePlugin.h"
#include "store/Journal.h"
#include "support/TestMessenger.h"

#include <QDockWidget>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <functional>
#include <utility>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// Counts what a journal hears.
class CountingJournal final : public Data::Journal {
public:
  void record(const Data::JournalEntry&) override { ++entries; }
  int entries = 0;
};

/// Does something the moment before the first results of a background run are handed over.
class BeforeResults final : public QObject {
public:
  BeforeResults(LivePlume& live, std::function<void()> act) : act_(std::move(act)) {
    live.installEventFilter(this);
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MetaCall && act_)
      std::exchange(act_, nullptr)();
    return false;
  }
  bool hasActed() const { return !act_; }

private:
  std::function<void()> act_;
};

class LivePlumeTest : public WholePlugin {
protected:
  LivePlumeTest() {
    QObject::connect(&live(), &LivePlume::shown, &listener_, [this](bool isLast) {
      marks << mark();
      settled += isLast;
    });
  }

  ~LivePlumeTest() override { setMessenger(nullptr); }

  LivePlume& live() { return plugin->livePlume(); }
  /// Previews the edits, to the end.
  void preview(const GUI::PropertyEdits& edits) {
    const int before = settled;
    live().preview(edits);
    EXPECT_TRUE(waitUntil([&] { return settled > before; }));
  }
  const Page::GridDataItem* previewed() { return window()->preview().grid(); }
  QString mark() { return window()->preview().mark(); }
  std::vector<double> values(int dataSet) {
    return window()->canvas().item<Page::GridDataItem>(items().results)->sets[dataSet].values;
  }
  /// What the window shows.
  QImage screen() {
    window()->resize(900, 650);
    QImage image(window()->size(), QImage::Format_RGB32);
    window()->render(&image);
    return image;
  }
  QByteArray exported(const QString& name) {
    EXPECT_TRUE(Page::exportPage(window()->canvas(), path(name)));
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  const GUI::PropertyEdits twiceTheConductivity{{HydraulicConductivity, 0.002}};
  int settled = 0;   ///< previews that were shown to their end
  QStringList marks; ///< that were shown

private:
  QObject listener_;
};

/// A project, what is edited in it, and a name for both.
struct EditedProject {
  const char* name;
  std::function<BatchProject()> project;
  GUI::PropertyEdits edits;
  /// What else is stored before.
  std::vector<std::pair<int, QVariant>> stored = {};
};

void PrintTo(const EditedProject& edited, std::ostream* stream) {
  *stream << edited.name;
}

class LiveResultsTest : public LivePlumeTest, public testing::WithParamInterface<EditedProject> {
protected:
  void expectSame(int dataSet, const std::vector<double>& previewed) {
    const std::vector<double> own = values(dataSet);
    ASSERT_EQ(own.size(), previewed.size());
    double largest = 0;
    for (std::size_t i = 0; i < own.size(); ++i)
      largest = std::max(largest, std::abs(own[i] - previewed[i]));
    EXPECT_LE(largest, 1e-9);
  }
  void expectResultsOfApplyAndRun() {
    preview(GetParam().edits);
    ASSERT_TRUE(previewed()) << mark().toStdString();
    const auto sets = previewed()->sets;
    const QVector<QPointF> nodes = {previewed()->mesh.nodes.begin(), previewed()->mesh.nodes.end()};
    std::vector<QPolygonF> lines;
    for (const auto& child : previewed()->children)
      if (const auto* line = dynamic_cast<const Page::IsolineItem*>(child.get());
          line && line->dataSet == Temperature)
        lines.push_back(line->line.points);

    live().end();
    GUI::applyEdits(store, GetParam().edits);
    run(*plugin);
    const auto* own = window()->canvas().item<Page::GridDataItem>(items().results);
    EXPECT_EQ((QVector<QPointF>{own->mesh.nodes.begin(), own->mesh.nodes.end()}), nodes);
    expectSame(Temperature, sets[Temperature].values);
    expectSame(Drawdowns, sets[Drawdowns].values);
    std::vector<QPolygonF> ownLines;
    for (const QVariant& id : isolines(Temperature))
      ownLines.push_back(of(id.toInt(), Points).value<QPolygonF>());
    EXPECT_EQ(ownLines, lines);
  }
};

BatchProject withExchange(BatchProject project) {
  return project.set("thermic", "exchange_caprock", "true")
      .set("thermic", "exchange_bedrock", "true");
}

/// A well that nobody gave a place: the map has one for it, in its middle.
BatchProject wellWithoutAPlace() {
  return BatchProject()
      .set("installation", R"(well_model\1\0)", "Return")
      .set("installation", R"(well_model\1\3)", 0.001)
      .set("installation", R"(well_model\1\4)", -3)
      .set("installation", "number_of_wells", 1)
      .set("installation", R"(well_model\size)", 1);
}

const EditedProject editedProjects[] = {
    {"conductivityOfADoublet", BatchProject::doublet, {{HydraulicConductivity, 0.004}}},
    {"exchangeOnAFrozenField",
     [] { return withExchange(BatchProject::doublet()); },
     {{HydraulicConductivity, 0.004}, {AquiferThickness, 12.0}}},
    {"exchangeSwitchedOn", BatchProject::doublet, {{ExchangeBedrock, true}}},
    {"porosityOfSeasons", BatchProject::seasons, {{EffectivePorosity, 0.1}}},
    {"seasonsInAClosedLoop",
     [] { return withExchange(BatchProject::seasons()); },
     {{ClosedLoop, true}, {GroundwaterGradient, 0.4}}},
    {"dispersivity", BatchProject::doublet, {{ThermalDispersivity, 5.0}}},
    {"flowDirection", BatchProject::doublet, {{GroundwaterFlowDirection, 37.0}}},
    {"longerTime", BatchProject::doublet, {{SimulationTime, 5 * secondsPerYear}}},
    {"moreCells",
     BatchProject::doublet,
     {{MaxNumberOfElements, 1200}, {MinElementLength, 1.0}, {CellIncreaseFactor, 20}}},
    {"looserTolerance", BatchProject::doublet, {{RelTolHeat, 1e-4}, {AbsTolHeat, 1e-3}}},
    {"wellWithoutAPlace",
     wellWithoutAPlace,
     {{HydraulicConductivity, 0.004}},
     {{ViewUseExtension, false}, {ViewScale, 2500}, {ViewX, 680880.3}, {ViewY, 226880.7}}},
    {"originOfTheView",
     wellWithoutAPlace,
     {{ViewX, 681000.7}},
     {{ViewUseExtension, false}, {ViewScale, 2500}, {ViewX, 680880.3}, {ViewY, 226880.7}}},
};

} // namespace

TEST_P(LiveResultsTest, areThoseOfApplyAndRunAfterARun) {
  prepare(GetParam().project());
  for (const auto& [id, value] : GetParam().stored)
    store.setValue(id, value);
  run(*plugin);
  expectResultsOfApplyAndRun();
}

TEST_P(LiveResultsTest, areThoseOfApplyAndRunBeforeAnyRun) {
  prepare(GetParam().project());
  for (const auto& [id, value] : GetParam().stored)
    store.setValue(id, value);
  plugin->updateCurrentGraphicWindow(); // opens the page
  expectResultsOfApplyAndRun();
}

INSTANTIATE_TEST_SUITE_P(Projects, LiveResultsTest, testing::ValuesIn(editedProjects),
                         [](const auto& edited) { return std::string(edited.param.name); });

TEST_F(LivePlumeTest, anEditIsShownWithAMarkInAWindowThatKeepsItsPage) {
  prepareDoublet();
  run(*plugin);
  const QImage before = screen();
  const QByteArray page = window()->contents();
  const QByteArray picture = exported("before.png");
  preview(twiceTheConductivity);
  ASSERT_TRUE(previewed());
  EXPECT_NE(previewed()->sets[Temperature].values, values(Temperature));
  EXPECT_EQ(mark(), "<b>Preview</b> (dashed: last run)");
  EXPECT_NE(screen(), before);
  EXPECT_EQ(window()->contents(), page);
  EXPECT_EQ(exported("beside.png"), picture);

  live().end();
  EXPECT_EQ(screen(), before);
  EXPECT_EQ(window()->contents(), page);
}

TEST_F(LivePlumeTest, nothingReachesTheProjectItsFileOrItsJournal) {
  prepareDoublet();
  run(*plugin);
  const auto saved = [this](const QString& name) {
    EXPECT_TRUE(plugin->writeProject(path(name)));
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  };
  const QByteArray file = saved("before.tvr");
  const Project before = store.project();
  CountingJournal journal;
  store.addJournal(&journal);
  preview({{HydraulicConductivity, 0.02}, {NumberOfWells, 2}, {SimulationTime, 1e8}});
  EXPECT_TRUE(previewed());
  EXPECT_TRUE(store.project() == before);
  EXPECT_EQ(saved("beside.tvr"), file);
  live().end();
  store.removeJournal(&journal);
  EXPECT_EQ(journal.entries, 0);
  EXPECT_EQ(saved("after.tvr"), file);
}

TEST_F(LivePlumeTest, aNewerEditIsShownInThePlaceOfAnOlderOne) {
  prepare(BatchProject::doublet().set("main", "simulation_time", 900));
  plugin->updateCurrentGraphicWindow();
  live().preview({{HydraulicConductivity, 0.004}});
  EXPECT_TRUE(waitUntil([this] { return live().isComputing(); }));
  preview({{SimulationTime, secondsPerYear}}); // which would wait for centuries otherwise
  ASSERT_TRUE(previewed());
  const std::vector<double> shown = previewed()->sets[Temperature].values;
  preview({{SimulationTime, secondsPerYear}});
  EXPECT_EQ(previewed()->sets[Temperature].values, shown);
}

TEST_F(LivePlumeTest, resultsThatArriveAfterANewerEditAreDropped) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  preview(twiceTheConductivity);
  const std::vector<double> ofNewer = previewed()->sets[Temperature].values;
  live().end();
  std::vector<std::vector<double>> shown;
  QObject::connect(&live(), &LivePlume::shown, &live(),
                   [&] { shown.push_back(previewed()->sets[Temperature].values); });
  const BeforeResults edit(live(), [this] { live().preview(twiceTheConductivity); });
  preview({{HydraulicConductivity, 0.02}});
  EXPECT_TRUE(edit.hasActed());
  EXPECT_EQ(shown, std::vector<std::vector<double>>(1, ofNewer));
}

TEST_F(LivePlumeTest, resultsThatArriveAfterTheEndAreDropped) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  const BeforeResults end(live(), [this] { live().end(); });
  live().preview(twiceTheConductivity);
  EXPECT_TRUE(waitUntil([&] { return end.hasActed(); }));
  QCoreApplication::processEvents();
  EXPECT_EQ(settled, 0);
  EXPECT_FALSE(previewed());
}

TEST_F(LivePlumeTest, aChangeOfTheProjectMakesThePreviewAnew) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  preview(twiceTheConductivity);
  ASSERT_TRUE(previewed());
  const std::vector<double> shown = previewed()->sets[Temperature].values;
  const int before = settled;
  store.setValue(AquiferThickness, 31.0);
  EXPECT_TRUE(waitUntil([&] { return settled > before; }));
  EXPECT_NE(previewed()->sets[Temperature].values, shown);
}

TEST_F(LivePlumeTest, afterItsEndNoResultIsShownAnyMore) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  live().preview(twiceTheConductivity);
  live().end();
  store.setValue(AquiferThickness, 31.0);
  run(*plugin); // takes longer than any rest
  EXPECT_EQ(settled, 0);
  EXPECT_FALSE(previewed());
  EXPECT_EQ(mark(), "");
}

TEST_F(LivePlumeTest, aRunOfTheProjectEndsThePreview) {
  prepareDoublet();
  run(*plugin);
  preview(twiceTheConductivity);
  ASSERT_TRUE(previewed());
  plugin->startSimulation();
  EXPECT_FALSE(previewed());
  EXPECT_EQ(mark(), "");
  EXPECT_TRUE(waitUntil([&] { return !plugin->simulationRun().simulation(); }));
}

TEST_F(LivePlumeTest, anEditDuringARunIsPreviewedAfterIt) {
  prepareDoublet();
  plugin->startSimulation();
  live().preview(twiceTheConductivity);
  bool isRunning = true;
  QObject::connect(&live(), &LivePlume::shown, &live(),
                   [&] { isRunning = plugin->simulationRun().simulation(); });
  EXPECT_TRUE(waitUntil([&] { return settled > 0; }));
  EXPECT_FALSE(isRunning);
  EXPECT_TRUE(previewed());
}

TEST_F(LivePlumeTest, withoutAFormerRunNoneIsSpokenOf) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  preview(twiceTheConductivity);
  EXPECT_EQ(mark(), "<b>Preview</b>");
}

TEST_F(LivePlumeTest, aLargerSiteSaysThatItIsBeingRefined) {
  prepareDoublet();
  store.setValue(MaxNumberOfElements, 6000);
  store.setValue(MinElementLength, 1.0);
  store.setValue(CellIncreaseFactor, 10);
  plugin->updateCurrentGraphicWindow();
  preview(twiceTheConductivity);
  EXPECT_EQ(marks, (QStringList{"<b>Preview</b>, is being refined", "<b>Preview</b>"}));
}

TEST_F(LivePlumeTest, aSiteThatCannotBeMeshedSaysSoInItsPlace) {
  TestMessenger messages;
  setMessenger(&messages);
  prepareDoublet();
  run(*plugin);
  const QImage before = screen();
  preview({{AquiferThickness, 0.0}});
  EXPECT_FALSE(previewed());
  EXPECT_TRUE(
      mark().startsWith("<b>Preview</b>: The mesh of cells around the wells cannot be made"))
      << mark().toStdString();
  EXPECT_NE(screen(), before);
  EXPECT_TRUE(messages.told.isEmpty());
}

TEST_F(LivePlumeTest, wellsAtOnePlaceAreSaidInPlace) {
  TestMessenger messages;
  setMessenger(&messages);
  prepareDoublet();
  run(*plugin);
  for (const int well : {0, 1})
    store.wellModel()->setCells({{well, WellModel::X, 681000.0}, {well, WellModel::Y, 227000.0}});
  preview(twiceTheConductivity);
  EXPECT_FALSE(previewed());
  EXPECT_TRUE(mark().startsWith("<b>Preview</b>: ")) << mark().toStdString();
  EXPECT_TRUE(messages.told.isEmpty());
}

TEST_F(LivePlumeTest, whatIsTypedInThePanelIsPreviewedUntilItIsGivenUp) {
  const std::unique_ptr<QDockWidget> dock(plugin->addDockingWindows(nullptr).value(0));
  auto* const panel = dock->findChild<GUI::DesignPropertyEditor*>();
  ASSERT_TRUE(panel);
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  emit panel->liveEdited(twiceTheConductivity);
  EXPECT_TRUE(waitUntil([this] { return settled > 0; }));
  EXPECT_TRUE(previewed());
  emit panel->liveEnded();
  EXPECT_FALSE(previewed());
  EXPECT_EQ(mark(), "");
}

TEST_F(LivePlumeTest, withoutAPageNothingIsRun) {
  prepareDoublet();
  live().preview(twiceTheConductivity);
  live().end();
  EXPECT_FALSE(window());
}
