#include "plugin/LiveSite.h"

#include "design/ParameterId.h"
#include "simulation/SiteCheck.h"
#include "simulation/SiteWriteBack.h"
#include "store/Manager.h"

namespace TVR {

LiveSite liveSite(const Data::Manager& store, const GUI::PropertyEdits& edits, int cycleLength,
                  const PlaceOfNewWells& placeOfNewWells) {
  Data::Manager copy;
  copy.setProject(store.project());
  GUI::applyEdits(copy, edits);
  if (const auto place = placeOfNewWells(copy))
    copy.setValue(Parameter::DefaultWellPosition, *place);
  makeTables(copy);
  return {readSite(copy), outputTimes(outputTimeInput(copy, cycleLength)), isothermChoice(copy),
          wellsAtOnePlace(copy)};
}

} // namespace TVR
