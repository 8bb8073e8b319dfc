#include "gui/editor/PropertyEdits.h"

#include "design/ParameterId.h"
#include "project/ProjectTarget.h"

namespace TVR::GUI {

using namespace Parameter;

namespace {

/// Required oddity: beside a heading, the density of the rock in the aquifer is never written.
bool isPassedOver(int id) {
  return id == HeadingHeatingSpecification || id == DensityAquifer;
}

} // namespace

void applyEdits(ProjectTarget& project, const PropertyEdits& edits) {
  project.setValue(CalculateWellConstruction, false);
  for (const PropertyEdit& edit : edits)
    if (!isPassedOver(edit.id))
      project.setValue(edit.id, edit.value);
}

void layEdits(ProjectOverlay& project, const PropertyEdits& edits) {
  for (const PropertyEdit& edit : edits) {
    project.set(edit.id, edit.value);
    if (edit.id == EffectivePorosity)
      project.set(AquiferPorosity, edit.value); // which stands in for one of 0
  }
}

} // namespace TVR::GUI
