#include "simulator/models/FVHeatModel.h"

#include "simulator/models/SimulatorConstants.h"

#include <array>
#include <cmath>
#include <memory>

FVHeatElement::FVHeatElement(double cellVolume, double T, double n, double densityOfRock,
                             double heatCapacityOfRock, double waterDensity,
                             double waterHeatCapacity, double lambda)
    : volume(cellVolume), temperature(T), conductivity(lambda),
      waterCapacity(waterDensity * waterHeatCapacity),
      capacity((1.0 - n) * densityOfRock * heatCapacityOfRock +
               n * waterDensity * waterHeatCapacity),
      rockDensity(densityOfRock), rockHeatCapacity(heatCapacityOfRock) {}

FVHeatConnection::FVHeatConnection(double toFace, double fromFace, double area, double areaX,
                                   double areaY, double Q, double alpha, FVHeatElement* first,
                                   FVHeatElement* second)
    : FVConnection(toFace, fromFace, area, areaX, areaY, first, second), Q_F(Q),
      dispersivity(alpha) {
  const double s = d1 + d2;
  const double meanConductivity = (e1->conductivity * d1 + e2->conductivity * d2) / s;
  coefficient = -(a / s * meanConductivity);
  chooseUpwind();
}

void FVHeatConnection::chooseUpwind() {
  if (std::abs(Q_F) <= smallestNormalDouble)
    upwind = nullptr;
  else
    upwind = Q_F < 0.0 ? e1 : e2;
}

void FVHeatConnection::setFlow(double Q, double n, double qx, double qy) {
  Q_F = Q;
  Q_x = qx;
  Q_y = qy;
  porosity = n;
  chooseUpwind();
  const double vx = qx / a / porosity;
  const double vy = qy / a / porosity;
  velocity = std::sqrt(vy * vy + vx * vx);
  if (velocity <= smallestNormalDouble) {
    D = 0.0;
    return;
  }
  const double longitudinal = dispersivity;
  const double transverse = 0.1 * longitudinal;
  const double Dxx = longitudinal * (vx * vx) / velocity + transverse * (vy * vy) / velocity;
  const double Dyy = longitudinal * (vy * vy) / velocity + transverse * (vx * vx) / velocity;
  const double Dxy = (longitudinal - transverse) * vx * vy / velocity;
  D = std::sqrt(ax / a * (Dxx * Dxx) + Dxy * Dxy + ay / a * (Dyy * Dyy));
}

LinkFactors FVHeatConnection::factors() const {
  LinkFactors factors{coefficient, 0.0, 0.0};
  if (Q_F != 0.0) {
    const double half = 0.5 * Q_F;
    factors.first = (upwind ? (upwind == e1 ? Q_F : 0.0) : half) * e1->waterCapacity;
    factors.second = (upwind ? (upwind == e2 ? Q_F : 0.0) : half) * e2->waterCapacity;
  }
  if (dispersivity != 0.0) {
    const double exchange = -(a / (d1 + d2) * D);
    factors.difference += exchange * e2->waterCapacity;
    factors.first += exchange * (e1->waterCapacity - e2->waterCapacity);
  }
  return factors;
}

void FVHeatSource::flux(std::vector<double>& out, int demandStep, double inflowValue) const {
  const double q = well->rate(demandStep);
  const double T =
      q < 0.0 ? element->temperature : well->temperatureChange(demandStep) + inflowValue;
  out[0] = q * element->waterCapacity * T;
}

FlatBalance::WellFactors FVHeatSource::factors(int demandStep) const {
  const double q = well->rate(demandStep);
  const double heatFlow = q * element->waterCapacity; // [W/K]
  if (q < 0.0)
    return {q, heatFlow, 0.0, 0.0};
  return {0.0, 0.0, heatFlow, heatFlow * well->temperatureChange(demandStep)};
}

FVHeatModel::FVHeatModel(double T0, double waterDensity, double waterHeatCapacity,
                         bool isClosedLoop)
    : FVModel(T0, isClosedLoop), waterDensity_(waterDensity),
      waterHeatCapacity_(waterHeatCapacity) {}

std::unique_ptr<FVHeatElement> FVHeatModel::makeElement(double volume, double T, double porosity,
                                                        double rockDensity, double rockHeatCapacity,
                                                        double conductivity) const {
  return std::make_unique<FVHeatElement>(volume, T, porosity, rockDensity, rockHeatCapacity,
                                         waterDensity_, waterHeatCapacity_, conductivity);
}

void FVHeatModel::addElement(double volume, double T, double porosity, double rockDensity,
                             double rockHeatCapacity, double conductivity) {
  elements.push_back(makeElement(volume, T, porosity, rockDensity, rockHeatCapacity, conductivity));
}

void FVHeatModel::addBoundaryElement(double volume, double T, double porosity, double rockDensity,
                                     double rockHeatCapacity, double conductivity) {
  boundaryElements.push_back(
      makeElement(volume, T, porosity, rockDensity, rockHeatCapacity, conductivity));
}

void FVHeatModel::connect(double d1, double d2, double a, double ax, double ay, double Q_F,
                          double dispersivity, std::size_t i1, std::size_t i2, bool insideBand) {
  registerConnection(std::make_unique<FVHeatConnection>(d1, d2, a, ax, ay, Q_F, dispersivity,
                                                        elements.at(i1).get(),
                                                        elements.at(i2).get()),
                     i1, i2, insideBand);
}

void FVHeatModel::addConnection(double d1, double d2, double a, double ax, double ay, double Q_F,
                                double dispersivity, std::size_t i1, std::size_t i2) {
  connect(d1, d2, a, ax, ay, Q_F, dispersivity, i1, i2, true);
}

void FVHeatModel::addBoundaryConnection(double d1, double d2, double a, double ax, double ay,
                                        double Q_F, double dispersivity, std::size_t i1,
                                        std::size_t i2) {
  registerBoundaryConnection(std::make_unique<FVHeatConnection>(d1, d2, a, ax, ay, Q_F,
                                                                dispersivity, elements.at(i1).get(),
                                                                boundaryElements.at(i2).get()),
                             i1);
}

void FVHeatModel::addSource(Well* well, std::size_t elementIndex) {
  registerSource(std::make_unique<FVHeatSource>(well, elements.at(elementIndex).get()),
                 elementIndex);
}

void FVHeatModel::addExchange(std::size_t elementIndex, double H, double area, double factor,
                              double rockDensity, double rockHeatCapacity, double conductivity,
                              double L, double T) {
  static_cast<void>(elements.at(elementIndex));
  constexpr std::array<double, 5> relativeThickness{0.01, 0.03, 0.05, 0.2, 1.0};
  const double A = area * factor;
  double d1 = H * 0.5;
  std::size_t below = elementIndex;
  for (std::size_t layer = 0; layer < relativeThickness.size(); ++layer) {
    const double thickness = relativeThickness[layer] * L;
    const bool touchesAquifer = layer == 0;
    if (touchesAquifer)
      elements.push_back(std::make_unique<FVHeatElement>(A * thickness, T, 0.0, rockDensity,
                                                         rockHeatCapacity, 0.0, 0.0, conductivity));
    else
      elements.push_back(
          makeElement(A * thickness, T, 0.0, rockDensity, rockHeatCapacity, conductivity));
    const std::size_t added = elements.size() - 1;
    // A chain stands far behind its cell in the list: inside the band, it would widen that of the
    // packaged linear solver from one row of the mesh to the whole of it.
    connect(d1, thickness * 0.5, A, 0.0, 0.0, 0.0, 0.0, below, added, !touchesAquifer);
    d1 = thickness * 0.5;
    below = added;
  }
}

void FVHeatModel::setFlow(std::size_t k, double Q, double porosity, double qx, double qy) {
  connections.at(k)->setFlow(Q, porosity, qx, qy);
}

void FVHeatModel::setBoundaryFlow(std::size_t k, double Q, double porosity, double qx, double qy) {
  boundaryConnections.at(k)->setFlow(Q, porosity, qx, qy);
}

double FVHeatModel::temperatureDifference(std::size_t k) const {
  const FVHeatConnection& link = *connections.at(k);
  return std::abs(link.e1->temperature - link.e2->temperature);
}

void FVHeatModel::stepAccepted(double t) {
  for (const auto& element : elements)
    element->stepAccepted(t);
  for (const auto& source : sources)
    source->record(t);
}
