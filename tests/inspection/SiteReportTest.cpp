#include "inspection/SiteReport.h"

#include "support/ProjectTest.h"

using namespace TVR;

namespace {

class SiteReportTest : public ProjectTest {
protected:
  SiteReportTest() { read(BatchProject::doublet()); }
};

} // namespace

TEST_F(SiteReportTest, aProblemStandsAtSectionAndKeyOfABatchFile) {
  store.setValue(Parameter::HydraulicConductivity, 100);
  store.setValue(Parameter::AquiferThickness, 250);
  const SiteReport report = siteReport("site.tbat", store);
  EXPECT_EQ(report.errors, QStringList{"[hydraulic] kf: expected 1e-08 to 10 m/s, found \"100\""});
  EXPECT_EQ(report.warnings,
            QStringList{"[hydraulic] aquifer_h: usual is 1 to 200 m, found \"250\""});
}

TEST_F(SiteReportTest, aProblemStandsAtTheKeyOfAProjectFile) {
  store.setValue(Parameter::HydraulicConductivity, 100);
  EXPECT_EQ(siteReport("site.tvr", store).errors,
            QStringList{"_kf: expected 1e-08 to 10 m/s, found \"100\""});
}

TEST_F(SiteReportTest, aParameterWithoutAKeyStandsUnderItsLabel) {
  store.setValue(Parameter::Gravity, 100);
  EXPECT_EQ(siteReport("site.tbat", store).errors,
            QStringList{"g: expected 1 to 30 m/s², found \"100\""});
}

TEST_F(SiteReportTest, aProblemOfTheWellsStandsAtTheirTable) {
  setWell(1, 0.001, 1000);
  EXPECT_EQ(siteReport("site.tbat", store).errors,
            QStringList{"[installation] well_model: temperature change of \"Return\": expected -99 "
                        "to 99 K, found \"1000\""});
  EXPECT_EQ(siteReport("site.tvr", store).errors,
            QStringList{"well_model: temperature change of \"Return\": expected -99 to 99 K, found "
                        "\"1000\""});
}

TEST_F(SiteReportTest, whatIsUnusualIsTheFirstLikelyCauseOfAFailure) {
  store.setValue(Parameter::DMinUsed, 40);
  const QString ofTheSite = likelyCauses("site.tbat", {}, store).section(": ", 1);
  EXPECT_EQ(likelyCauses("site.tbat", {{}, {"[hydraulic] kf: low", "[main] x: high"}}, store),
            "likely at fault: [hydraulic] kf: low; [main] x: high; " + ofTheSite);
}

TEST_F(SiteReportTest, thicknessConductivityAndWellDistanceAreLikelyCauses) {
  store.setValue(Parameter::DMinUsed, 40);
  EXPECT_EQ(
      likelyCauses("site.tbat", {}, store),
      "likely at fault: [hydraulic] aquifer_h (10 m), [hydraulic] kf (0.001 m/s), distance of "
      "the wells in [installation] well_model (40 m)");
  store.setValue(Parameter::AquiferUnconfined, true);
  EXPECT_TRUE(likelyCauses("site.tbat", {}, store)
                  .startsWith("likely at fault: [hydraulic] aquifer_basis (10 m bgl), "));
}
