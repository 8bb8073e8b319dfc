#include "plugin/PagePluginTest.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class RunViewTest : public PagePluginTest {
protected:
  QVariantList onGrid(int property) { return page.valuesOf(items().results, property); }

  /// The data sets that were selected and what was written to each, in order: "1:152", say.
  QStringList writesOnGrid(int firstSet) {
    QStringList writes;
    int dataSet = 0;
    for (std::size_t i = firstSet; i < page.sets.size(); ++i)
      if (page.sets[i].item == items().results) {
        if (page.sets[i].property == SelectedSet)
          dataSet = page.sets[i].value.toInt();
        else
          writes << QStringLiteral("%1:%2").arg(dataSet).arg(page.sets[i].property);
      }
    return writes;
  }
};

/// Widgets as the panel of the main window has them.
struct Panel {
  explicit Panel(TVRPlugin& plugin) { plugin.setProgressPanel({&message, &work, &times, &stop}); }
  QLabel message;
  QProgressBar work;
  QProgressBar times;
  QPushButton stop;
};

/// Looks at the plug-in in the middle of a run: at a step before its values are shown.
class Spy final : public RunObserver {
public:
  explicit Spy(TVRPlugin& plugin) : plugin_(plugin) { plugin_.simulationRun().addObserver(this); }
  ~Spy() override { plugin_.simulationRun().removeObserver(this); }
  void stepReached(const RunStep& step) override {
    if (atStep)
      atStep(step.index);
  }
  void completing(const RunResults&) override {
    if (atEnd)
      atEnd();
  }
  std::function<void(int)> atStep;
  std::function<void()> atEnd;

private:
  TVRPlugin& plugin_;
};

} // namespace

TEST_F(RunViewTest, aRunOpensThePageAndPutsItsMeshOnIt) {
  prepare();
  run(plugin);
  EXPECT_EQ(library.asked, QStringList{"'' 1"});
  ASSERT_GT(items().results, 0);
  EXPECT_EQ(onGrid(CellCount), QVariantList{store.count(UsedNumberOfElements)});
  EXPECT_EQ(onGrid(Cell).size(), store.count(UsedNumberOfElements));
}

TEST_F(RunViewTest, everyStepShowsDrawdownsAndThenTemperatures) {
  prepare();
  int steps = 0;
  int before = 0;
  Spy spy(plugin);
  spy.atStep = [&](int) {
    if (++steps == 2)
      before = static_cast<int>(page.sets.size());
  };
  run(plugin);
  EXPECT_EQ(steps, 2);
  EXPECT_EQ(writesOnGrid(before).mid(0, 3),
            (QStringList{QStringLiteral("1:%1").arg(Values), QStringLiteral("2:%1").arg(Values),
                         QStringLiteral("2:%1").arg(Levels)}));
}

TEST_F(RunViewTest, aFrozenFlowFieldShowsItsDrawdownsOnce) {
  prepare(BatchProject::doublet().set("thermic", "exchange_caprock", "true"));
  store.setValue(ThermalDispersivity, 0.0);
  run(plugin);
  QVariantList shown;
  int dataSet = 0;
  for (const RecordingPage::Set& set : page.sets) {
    if (set.item != items().results)
      continue;
    if (set.property == SelectedSet)
      dataSet = set.value.toInt();
    if (set.property == Values)
      shown << dataSet;
  }
  EXPECT_EQ(shown, (QVariantList{1, 2, 2, 1, 2})) << "the last two are the results";
}

TEST_F(RunViewTest, temperaturesHaveAnEntryForEachElementOfTheHeatModel) {
  prepare(BatchProject::doublet().set("thermic", "exchange_caprock", "true"));
  int elements = 0;
  Spy spy(plugin);
  spy.atStep = [&](int) {
    elements = onGrid(Values).isEmpty() ? 0 : onGrid(Values).last().toList().size();
  };
  run(plugin);
  const int cells = store.count(UsedNumberOfElements);
  EXPECT_GT(elements, cells);
  for (const QVariant& values : onGrid(Values))
    EXPECT_GE(values.toList().size(), cells);
  EXPECT_EQ(onGrid(Values).last().toList().size(), cells) << "the results are those of the aquifer";
}

TEST_F(RunViewTest, aBusyPageMissesAStepAndNotTheRun) {
  prepare();
  std::unique_ptr<LockedElsewhere> locked;
  std::size_t before = 0;
  std::size_t after = 0;
  Spy spy(plugin);
  int steps = 0;
  spy.atStep = [&](int) {
    if (++steps == 1) {
      before = page.sets.size();
      locked = std::make_unique<LockedElsewhere>(graphic().mutex());
    } else if (steps == 2) {
      after = page.sets.size();
      locked.reset();
    }
  };
  run(plugin);
  EXPECT_EQ(after, before) << "the values of the first step were dropped";
  EXPECT_TRUE(of("Summary", Html).isValid());
}

TEST_F(RunViewTest, theResultsEndUpOnThePage) {
  prepare();
  run(plugin);
  const QVariantList sets = onGrid(SetTitle);
  EXPECT_EQ(sets, (QVariantList{"Head", "Temperature"}));
  const QVariantList levels = onGrid(Levels);
  ASSERT_FALSE(levels.isEmpty());
  EXPECT_EQ(of("Map view", XAutoScale), QVariant(false)) << "the stored view is applied at last";
  EXPECT_TRUE(page.calls.contains("redrawItem 0"));
  EXPECT_EQ(page.calls.last(), QStringLiteral("redrawItem %1").arg(item("Map view")));
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(RunViewTest, isohypsesAreChosenBeforeTheIsothermsAndDressedAfterThem) {
  prepare();
  std::size_t filled = 0;
  run(plugin);
  for (std::size_t i = 0; i < page.sets.size(); ++i)
    if (page.sets[i].item == items().results && page.sets[i].property == SetTitle)
      filled = i;
  QStringList order;
  for (std::size_t i = filled; i < page.sets.size(); ++i) {
    const RecordingPage::Set& set = page.sets[i];
    if (set.property == Levels)
      order << (set.value.toList().first().userType() == QMetaType::QString ? "isohypses"
                                                                            : "isotherms");
    if (set.item == item("Map view") && set.property == XAutoScale && set.value.toBool() &&
        !order.contains("axes"))
      order << "axes";
  }
  EXPECT_EQ(order, (QStringList{"isohypses", "isotherms", "axes"}));
  EXPECT_EQ(page.calls.filter("setNotificationsEnabled").size(), 2);
}

TEST_F(RunViewTest, theSummaryIsThatOfTheWholeRun) {
  prepare();
  run(plugin);
  EXPECT_TRUE(
      of("Summary", Html).toString().contains("Operation time: </td><td align=\"right\">2<"))
      << of("Summary", Html).toString().toStdString();
}

TEST_F(RunViewTest, theSummaryOfACancelledRunNamesTheTimeReached) {
  prepare(BatchProject::doublet().set("main", "simulation_time", 30));
  Spy spy(plugin);
  spy.atStep = [&](int step) {
    if (step == 2)
      plugin.cancelSimulation();
  };
  run(plugin);
  EXPECT_TRUE(
      of("Summary", Html).toString().contains("Operation time: </td><td align=\"right\">3<"))
      << of("Summary", Html).toString().toStdString();
}

TEST_F(RunViewTest, theTableOfTheWellsIsWrittenBetweenThePageAndTheSummary) {
  prepare();
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, path("wells.txt"));
  bool wasFilled = false;
  bool wasWritten = false;
  Spy spy(plugin);
  spy.atEnd = [&] {
    wasFilled = onGrid(SetTitle).size() == 2;
    wasWritten = QFile::exists(path("wells.txt"));
  };
  run(plugin);
  EXPECT_TRUE(wasFilled);
  EXPECT_TRUE(wasWritten);
}

TEST_F(RunViewTest, aRunWithoutAPageIsTheSame) {
  AppInterface::setGraphicsInterface(nullptr);
  host.active = nullptr;
  prepare();
  run(plugin);
  EXPECT_TRUE(page.sets.empty());
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(host.status.contains("Calculate isotherms ... [1000]"));
}

TEST_F(RunViewTest, aBatchLeavesThePageAlone) {
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  EXPECT_TRUE(contentOf(path("p.out")).startsWith("Time [s]"));
  EXPECT_TRUE(page.sets.empty());
  EXPECT_TRUE(host.status.isEmpty());
  EXPECT_TRUE(host.progress.isEmpty());
}

// The panel

TEST_F(RunViewTest, thePanelShowsTheStepsOfARun) {
  Panel panel(plugin);
  prepare();
  QStringList messages;
  QList<int> values;
  Spy spy(plugin);
  spy.atStep = [&](int) {
    messages << panel.message.text();
    values << panel.times.value();
    EXPECT_TRUE(panel.message.isVisibleTo(nullptr));
    EXPECT_EQ(panel.times.maximum(), 2);
  };
  run(plugin);
  EXPECT_EQ(messages, (QStringList{"Simulate t = 1.00 a", "Simulate t = 2.00 a"}));
  EXPECT_EQ(values, (QList<int>{0, 1}));
  EXPECT_EQ(panel.message.text(), "Finished ...");
  EXPECT_GT(panel.times.maximum(), 2) << "the rows of the mesh";
  for (QWidget* const widget :
       {static_cast<QWidget*>(&panel.message), static_cast<QWidget*>(&panel.work),
        static_cast<QWidget*>(&panel.times), static_cast<QWidget*>(&panel.stop)})
    EXPECT_TRUE(widget->isHidden());
  EXPECT_FALSE(host.status.join('|').contains("Simulate")) << "the panel says it";
  EXPECT_TRUE(host.status.join('|').contains("Using"));
}

TEST_F(RunViewTest, thePanelIsBusyWhileTheModelIsMade) {
  Panel panel(plugin);
  prepare(BatchProject().set("installation", "number_of_wells", 0));
  plugin.startSimulation();
  EXPECT_EQ(panel.message.text(), "Initialise Simulation");
  EXPECT_EQ(panel.work.maximum(), 0);
}

TEST_F(RunViewTest, aRunThatCanNotBeginLeavesNoPanelBehind) {
  Panel panel(plugin);
  prepare(BatchProject().set("installation", "number_of_wells", 0));
  plugin.startSimulation();
  for (QWidget* const widget :
       {static_cast<QWidget*>(&panel.message), static_cast<QWidget*>(&panel.work),
        static_cast<QWidget*>(&panel.times), static_cast<QWidget*>(&panel.stop)})
    EXPECT_TRUE(widget->isHidden());
}

TEST_F(RunViewTest, anErrorEndsThePanel) {
  Panel panel(plugin);
  prepare(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  run(plugin);
  EXPECT_EQ(panel.message.text(), "Error at t = 1.00 a");
  EXPECT_EQ(panel.work.maximum(), 1);
  EXPECT_TRUE(panel.message.isHidden());
}

TEST_F(RunViewTest, aLongCycleCountsInCycles) {
  Panel panel(plugin);
  prepare();
  plugin.simulationRun().setCycleLength(24);
  QStringList messages;
  Spy spy(plugin);
  spy.atStep = [&](int) { messages << panel.message.text(); };
  run(plugin);
  EXPECT_EQ(messages.value(0), "Simulate t = 1.00 cycle");
}
