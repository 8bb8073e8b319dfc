#include "batch/ProgressDisplay.h"

#include "support/SmallSite.h"

#include <gtest/gtest.h>

using TVR::Batch::ProgressDisplay;

TEST(ProgressDisplayTest, theBarTellsYearElapsedAndRemainingTime) {
  EXPECT_EQ(ProgressDisplay::bar(0.5, 15, 30, 61).toStdString(),
            "[###############---------------]  50 %  year 15.0 of 30.0  elapsed 1:01  remaining "
            "1:01");
}

TEST(ProgressDisplayTest, theBarIsFullAtTheEnd) {
  EXPECT_EQ(
      ProgressDisplay::bar(1, 2, 2, 9).toStdString(),
      "[##############################] 100 %  year 2.0 of 2.0  elapsed 0:09  remaining 0:00");
}

TEST(ProgressDisplayTest, offATerminalThereIsALineForEachTenthOfTheTime) {
  constexpr double years = 30 * TVR::secondsPerYear;
  SmallSite site;
  const TVR::Simulation simulation(site.input(SmallSite::years(1)));
  ProgressDisplay display("site.tbat", false);
  testing::internal::CaptureStderr();
  display.starting({100, 20, years});
  for (int step = 0; step < 20; ++step)
    display.stepReached({step, 20, (step + 1) * 0.05 * years, simulation});
  const std::string text = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 11);
  EXPECT_NE(text.find(": site.tbat: 100 cells, 20 output times\n"), std::string::npos);
  EXPECT_NE(text.find(": site.tbat: 70 %, year 21.0 of 30.0\n"), std::string::npos);
}
