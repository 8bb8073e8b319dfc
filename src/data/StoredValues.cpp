#include "data/StoredValues.h"

#include "data/FileLimits.h"
#include "data/Manager.h"

namespace TVR::Data {

using namespace Parameter;

void settleStoredValue(int id, double fileVersion, Manager& store) {
  const QVariant value = store.values().value(id);
  switch (id) {
  case HeatConductivityStone:
    store.setStored(HeatConductivityAquifer, value);
    store.setStored(HeatConductivitySurrounding, value);
    break;
  case DensityStone:
    store.setStored(DensityAquifer, value);
    store.setStored(DensitySurrounding, value);
    break;
  case NumberOfWells: {
    const bool countsPairs = fileVersion < firstVersionWithSignedRates;
    store.setValue(id, FileLimits::allowed(id, countsPairs ? value.toDouble() * 2 : value, store));
    break;
  }
  default:
    break;
  }
}

} // namespace TVR::Data
