#include "gui/EveryPage.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// Another value of the same kind.
QVariant otherThan(const QVariant& value) {
  if (value.userType() == QMetaType::Bool)
    return !value.toBool();
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  return isNumber ? QVariant(number + 1) : QVariant(value.toString() + " other");
}

class ResetOrder : public EveryPage {
protected:
  /// Changes these parameters on a page and goes back; what is put back, in its order. What a rule
  /// has put back already is not written again.
  QVector<int> orderOf(const char* name, const QVector<int>& ids) {
    QWizardPage& page = pageOf(name);
    page.initializePage();
    for (const int id : ids)
      store.setStored(id, otherThan(store.stored(id)));
    return putBack(page);
  }
};

TEST_F(ResetOrder, isThatOfEachPage) {
  const std::pair<const char*, QVector<int>> pages[] = {
      {"UserWizardPage", {UserName, UserStreet, UserZip, UserLogo, UserLocation}},
      {"ProjectWizardPage",
       {ProjectName, ProjectStreet, ProjectZip, ProjectLocation, ProjectDescription}},
      {"EnergyConsumptionWizardPage", {ProvidedEnergyDemandType, OilDemand}},
      {"HeatPumpSpecificationWizardPage", {SystemCop, UsedTemperatureChange}},
      {"AquiferWizardPage",
       {GroundwaterGradient, AquiferUnconfined, GroundwaterTable, AquiferBasis, AquiferThickness,
        UseProvidedAquiferProperties, HydraulicConductivity, EffectivePorosity, AquiferMaterial}},
      {"ProvidedWellsWizardPage",
       {CalculateWellConstruction, NumberOfWells, DistanceBetweenWells, WellDepth, AquiferBasis,
        FilterLengthProvided, AquiferThickness, FilterDiameterProvided, SuperposeDrawdown}},
      {"MappingWizardPage",
       {ViewX, ViewY, ViewUseExtension, ViewHorizontalExtension, ViewScale, BackgroundImage,
        BackgroundImageFile, BackgroundImageX, BackgroundImageY, BackgroundImageWidth,
        BackgroundImageHeight}},
      {"SimulationParameterWizardPage",
       {GroundwaterFlowDirection, SimulationTime, AdditionalIsotherm, MaxNumberOfElements,
        ExchangeBedrock, ExchangeCaprock}}};
  for (const auto& [page, ids] : pages)
    EXPECT_EQ(orderOf(page, ids), ids) << page;
}

TEST_F(ResetOrder, ofCoolingAndHeatingDependsOnWhatWasUsed) {
  const QVector<int> cooling{CoolingDemand, CoolingTemperatureChange};
  const QVector<int> heating{HeatingDemand, HeatingTemperatureChange};
  store.setStored(CoolingOnly, false);
  for (const double hours : {1000.0, 0.0}) {
    store.setStored(CoolingPeakLoadDuration, hours);
    store.setStored(HeatingPeakLoadDuration, hours);
    const QVector<int> expected =
        cooling + QVector<int>{hours > 0 ? CoolingPeakLoadDuration : CoolingPower, CoolingOnly} +
        heating + QVector<int>{hours > 0 ? HeatingPeakLoadDuration : HeatingPower, SystemCop};
    EXPECT_EQ(orderOf("CoolingAndHeatingInstallationWizardPage", expected), expected) << hours;
  }
}

} // namespace
} // namespace TVR::GUI
