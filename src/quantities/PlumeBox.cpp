#include "quantities/PlumeBox.h"

#include "quantities/MeshRefinement.h"
#include "quantities/SiteSolution.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace TVR::Quantities {

QRectF plumeBox(const SiteInput& site, const OutputTimes& outputTimes, double level) {
  SiteSetup setup = makeSite(site, outputTimes, planSite(site, outputTimes));
  *setup.mesh = coarsened(*setup.mesh, setup.wells);
  const std::vector<double> changes = solveSite(setup).temperatureChanges;
  double least = std::abs(level);
  const auto [coldest, warmest] = std::minmax_element(changes.begin(), changes.end());
  least = std::min(least, std::max(-*coldest, *warmest) / 2);
  QPolygonF places;
  for (const SiteWell& well : site.wells)
    places << well.place;
  for (std::size_t i = 0; least > 0 && i < changes.size(); ++i)
    if (std::abs(changes[i]) >= least) {
      const FVMeshElement& element = setup.mesh->elements[i];
      places << setup.frame.onMap({element.x, element.y});
    }
  return places.boundingRect();
}

} // namespace TVR::Quantities
