#include "files/StoredValues.h"

#include "design/ParameterId.h"
#include "project/ProjectLimits.h"
#include "project/ProjectTarget.h"

namespace TVR::Data {

using namespace Parameter;

void settleStoredValue(int id, double fileVersion, ProjectTarget& project) {
  const QVariant value = project.stored(id);
  switch (id) {
  case HeatConductivityStone:
    project.setStored(HeatConductivityAquifer, value);
    project.setStored(HeatConductivitySurrounding, value);
    break;
  case DensityStone:
    project.setStored(DensityAquifer, value);
    project.setStored(DensitySurrounding, value);
    break;
  case NumberOfWells: {
    const bool countsPairs = fileVersion < firstVersionWithSignedRates;
    project.setValue(
        id, ProjectLimits::allowed(id, countsPairs ? value.toDouble() * 2 : value, project));
    break;
  }
  default:
    break;
  }
}

} // namespace TVR::Data
