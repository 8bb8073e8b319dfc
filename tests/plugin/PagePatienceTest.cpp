#include "plugin/LockPatience.h"
#include "plugin/PagePluginTest.h"

using namespace TVR;
using namespace TVR::Parameter;

namespace {

using PagePatienceTest = PagePluginTest;
using Patience = std::vector<int>; // [ms]

} // namespace

TEST_F(PagePatienceTest, textsAndMarksOfAPageAreNotWaitedFor) {
  graphic().startup(nullptr);
  ASSERT_GT(items().wells, 0);
  const LockPatience locking(graphic().mutex());
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(locking.asked(), (Patience{0, 0}));
}

TEST_F(PagePatienceTest, aStepWaitsBrieflyForItsIsothermsAndNotForItsSummary) {
  startLongRun(plugin);
  ASSERT_GT(items().results, 0);
  const LockPatience locking(graphic().mutex());
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "calculateIsotherms",
                                        Q_ARG(double, static_cast<double>(secondsPerYear))));
  EXPECT_EQ(locking.asked(), (Patience{10, 0}));
}

TEST_F(PagePatienceTest, isothermsWaitAsLongAsTheyAreTold) {
  items().results = page.addItem("Simulation results");
  const LockPatience locking(graphic().mutex());
  plugin.updateIsotherms(0);
  plugin.updateIsotherms(0, 70);
  EXPECT_EQ(locking.asked(), (Patience{1000, 70}));
}

TEST_F(PagePatienceTest, aProjectThatIsLoadedWaitsASecondForThePage) {
  ASSERT_TRUE(BatchProject::doublet().write(path("p.tbat")));
  const MessageLog log;
  const LockPatience locking(graphic().mutex());
  plugin.load(path("p.tbat"));
  EXPECT_EQ(locking.asked(), Patience{1000});
}

TEST_F(PagePatienceTest, otherChangesOfThePageWaitASecond) {
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"a stored page", [this] { plugin.setGraphicContents("stored"); }},
      {"the scale of an activated window", [this] { plugin.workspaceWindowActivated(&page); }},
      {"isohypses", [this] { plugin.updateIsobars(); }}};
  for (const auto& [name, change] : changes) {
    const LockPatience locking(graphic().mutex());
    change();
    EXPECT_EQ(locking.asked(), Patience{1000}) << name;
  }
}
