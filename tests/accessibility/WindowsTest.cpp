// Every window, dialog and page of the program, as tours come by them, is used by keyboard, with a
// screen reader and with large letters, in each language.

#include "accessibility/AccessibilityLint.h"
#include "support/SettingsOfTheTest.h"
#include "tour/DialogTour.h"
#include "tour/PageTour.h"
#include "tour/WindowTour.h"

#include <QApplication>
#include <QFont>
#include <QMessageBox>
#include <QWidget>
#include <QWizard>

#include <gtest/gtest.h>

using namespace TVR::Test;

namespace {

/// Dialogs for files and printing are the library's, its boxes show texts of the program.
bool isOurs(const QWidget& window) {
  return *window.metaObject()->className() != 'Q' || qobject_cast<const QMessageBox*>(&window);
}

/// The letters of all widgets that are made while this object lives, so many times as large.
class LargeLetters {
public:
  explicit LargeLetters(double times) : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSizeF(usual_.pointSizeF() * times);
    QApplication::setFont(font);
  }
  ~LargeLetters() { QApplication::setFont(usual_); }
  LargeLetters(const LargeLetters&) = delete;
  LargeLetters& operator=(const LargeLetters&) = delete;

private:
  const QFont usual_;
};

constexpr char project[] = TEVRANE_SOURCE_DIR "/examples/minimal.tbat";

} // namespace

/// A language, and how large the letters are.
class AccessibleWindows : public testing::TestWithParam<std::tuple<const char*, double>> {
protected:
  const Visit visit = [this](const QString& name, QWidget& window) {
    if (!isOurs(window))
      return;
    visited << name;
    EXPECT_EQ(accessibilityFaults(window).join("; ").toStdString(), "") << name.toStdString();
  };
  const char* const language = std::get<0>(GetParam());
  QStringList visited;

private:
  const SettingsOfTheTest settings_;
  const LargeLetters letters_{std::get<1>(GetParam())};
};

TEST_P(AccessibleWindows, haveNoFaults) {
  tourOfWindows(language, project, visit);
  for (const char* const name :
       {"first_start", "welcome", "page", "guide", "about", "report_problem"})
    EXPECT_TRUE(visited.contains(name)) << name;
}

TEST_P(AccessibleWindows, haveNoFaultsOnAnyPageOfAWizard) {
  tourOfPages(language, project, [this](const QString& name, QWidget& window) {
    visit(name, window);
    if (!qobject_cast<const QWizard*>(&window))
      return;
    // Larger letters make the buttons of a wizard wider; what is longer than a page scrolls.
    EXPECT_EQ(window.height(), 620) << name.toStdString();
    EXPECT_LE(window.width(), std::get<1>(GetParam()) > 1.0 ? 480 : 400) << name.toStdString();
  });
  for (const char* const name :
       {"page_User_logo", "page_Project", "page_EnergyDemandFeature",
        "page_CoolingAndHeatingInstallation_turned", "page_EnergyConsumption_empty_refused",
        "page_EnergyDemandDefinition", "page_EnergyDemandDetermination",
        "page_EnergyDemandApproximation", "page_HeatPumpSpecification", "page_EnergyDemandResult",
        "page_Aquifer_back", "page_ProvidedWells_provided_on", "page_AquiferAndWellSummary",
        "page_Mapping_picture", "page_WellPositionAndUsage_periods", "page_SimulationParameter",
        "page_ExtendedSimulationParameter"})
    EXPECT_TRUE(visited.contains(name)) << name;
}

TEST_P(AccessibleWindows, haveNoFaultsInDialogsThatSeldomOpen) {
  tourOfDialogs(language, visit);
  for (const char* const name : {"recovery_1", "recovery_6", "box_fault", "box_done"})
    EXPECT_TRUE(visited.contains(name)) << name;
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, AccessibleWindows,
                         testing::Combine(testing::Values("de", "en", "fr"),
                                          testing::Values(1.0, 1.5)));
