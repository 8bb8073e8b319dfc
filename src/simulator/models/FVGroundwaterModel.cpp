#include "simulator/models/FVGroundwaterModel.h"

#include "simulator/models/SimulatorConstants.h"

#include <cmath>
#include <memory>

FVGroundwaterElement::FVGroundwaterElement(double volume, double porosity, double compressibility,
                                           double k, double mu, double p0)
    : permeability(k), viscosity(mu), pressure(p0), initialPressure(p0),
      storage(volume * porosity * compressibility) {}

FVGroundwaterConnection::FVGroundwaterConnection(double toFace, double fromFace, double area,
                                                 double areaX, double areaY,
                                                 FVGroundwaterElement* first,
                                                 FVGroundwaterElement* second)
    : FVConnection(toFace, fromFace, area, areaX, areaY, first, second) {
  const double s = d1 + d2;
  const double meanPermeability = (e1->permeability * d1 + e2->permeability * d2) / s;
  const double meanViscosity = (e1->viscosity * d1 + e2->viscosity * d2) / s;
  coefficient = -(meanPermeability * a / meanViscosity / s);
}

// Water of a source brings no state value with it, so reference value and closed loop are idle.
FVGroundwaterModel::FVGroundwaterModel(double viscosity)
    : FVModel(0.0, true), viscosity_(viscosity) {}

void FVGroundwaterModel::addElement(double volume, double porosity, double compressibility,
                                    double permeability, double initialPressure) {
  elements.push_back(std::make_unique<FVGroundwaterElement>(
      volume, porosity, compressibility, permeability, viscosity_, initialPressure));
}

void FVGroundwaterModel::addBoundaryElement(double volume, double porosity, double compressibility,
                                            double permeability, double initialPressure) {
  boundaryElements.push_back(std::make_unique<FVGroundwaterElement>(
      volume, porosity, compressibility, permeability, viscosity_, initialPressure));
}

void FVGroundwaterModel::addConnection(double d1, double d2, double a, double ax, double ay,
                                       std::size_t i1, std::size_t i2) {
  registerConnection(std::make_unique<FVGroundwaterConnection>(
                         d1, d2, a, ax, ay, elements.at(i1).get(), elements.at(i2).get()),
                     i1, i2, true);
}

void FVGroundwaterModel::addBoundaryConnection(double d1, double d2, double a, double ax, double ay,
                                               std::size_t i1, std::size_t i2) {
  registerBoundaryConnection(
      std::make_unique<FVGroundwaterConnection>(d1, d2, a, ax, ay, elements.at(i1).get(),
                                                boundaryElements.at(i2).get()),
      i1);
}

void FVGroundwaterModel::addSource(Well* well, std::size_t elementIndex) {
  registerSource(std::make_unique<FVGroundwaterSource>(well, elements.at(elementIndex).get()),
                 elementIndex);
}

double FVGroundwaterModel::travelTime(std::size_t k) const {
  const FVGroundwaterConnection& link = *connections.at(k);
  return (link.d1 + link.d2) * link.a / link.flow();
}

namespace {

void addWeightedFlow(FVGroundwaterElement& element, const FVGroundwaterConnection& link, double Q) {
  if (std::abs(link.ax) > smallestNormalDouble) {
    element.weightX += link.ax;
    element.flowX += link.ax * Q;
  }
  if (std::abs(link.ay) > smallestNormalDouble) {
    element.weightY += link.ay;
    element.flowY += link.ay * Q;
  }
}

} // namespace

void FVGroundwaterModel::computeDirectionalFlows(std::vector<double>& qx, std::vector<double>& qy) {
  for (const auto& element : elements)
    element->flowX = element->flowY = element->weightX = element->weightY = 0.0;
  for (const auto& link : connections) {
    const double Q = link->flow();
    addWeightedFlow(*link->e1, *link, Q);
    addWeightedFlow(*link->e2, *link, -Q);
  }
  for (std::size_t k = 0; k < boundaryConnections.size(); ++k) {
    const FVGroundwaterConnection& boundaryLink = *boundaryConnections[k];
    addWeightedFlow(*boundaryLink.e1, boundaryLink, boundaryLink.flow());
    // Required oddity: the second elements of the first links count twice; established results
    // rest on it. A mesh of one column has more boundary links than links, and nothing to repeat
    // for those in excess.
    if (k < connections.size()) {
      const FVGroundwaterConnection& link = *connections[k];
      addWeightedFlow(*link.e2, link, -link.flow());
    }
  }
  for (std::size_t k = 0; k < connections.size(); ++k) {
    const FVGroundwaterConnection& link = *connections[k];
    const FVGroundwaterElement& e1 = *link.e1;
    const FVGroundwaterElement& e2 = *link.e2;
    const double s = link.d1 + link.d2;
    qx.at(k) = (e2.flowX / e2.weightX * link.d2 + e1.flowX / e1.weightX * link.d1) / s;
    qy.at(k) = (e2.flowY / e2.weightY * link.d2 + e1.flowY / e1.weightY * link.d1) / s;
  }
}
