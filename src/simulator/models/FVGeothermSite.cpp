#include "simulator/models/FVGeothermSite.h"

#include <algorithm>
#include <cstddef>
#include <utility>

FVGeothermSite::FVGeothermSite(std::unique_ptr<FVMesh> mesh, const FVMaterial& aquifer,
                               double gradient, const std::vector<Well*>& wells, double T0,
                               double waterDensity, double waterHeatCapacity, double viscosity,
                               double dispersivity, double startTime, double exchangeFactor,
                               const FVMaterial& surrounding, double exchangeLength,
                               bool closedLoop, LinearSolver linearSolver)
    : FVGeothermModel(T0, waterDensity, waterHeatCapacity, viscosity, startTime, closedLoop,
                      linearSolver),
      mesh_(std::move(mesh)), gradient_(gradient), aquifer_(aquifer),
      surrounding_(surrounding.name == "undefined" ? aquifer : surrounding), T0_(T0) {
  for (const Well* well : wells)
    wells_.push_back(std::make_unique<Well>(*well));
  addCells();
  addLinks(dispersivity);
  const std::vector<std::size_t> wellElements = addWells();
  if (exchangeFactor > 0.0)
    addExchangeChains(wellElements, exchangeFactor, exchangeLength);
}

void FVGeothermSite::addCells() {
  const double x0 = mesh_->elements.front().x;
  for (const FVMeshElement& cell : mesh_->elements)
    addElement(cell.volume, aquifer_, (cell.x - x0) * gradient_, T0_);
  for (const FVMeshElement& cell : mesh_->boundaryElements)
    addBoundaryElement(cell.volume, aquifer_, (cell.x - x0) * gradient_, T0_);
}

void FVGeothermSite::addLinks(double dispersivity) {
  const auto index = [](std::int32_t i) { return static_cast<std::size_t>(i); };
  for (const FVMeshConnection& link : mesh_->connections)
    addConnection(link.d1, link.d2, link.a, link.ax, link.ay, dispersivity, index(link.i1),
                  index(link.i2));
  for (const FVMeshConnection& link : mesh_->boundaryConnections)
    addBoundaryConnection(link.d1, link.d2, link.a, link.ax, link.ay, dispersivity, index(link.i1),
                          index(link.i2));
}

std::vector<std::size_t> FVGeothermSite::addWells() {
  std::vector<std::size_t> wellElements;
  for (const auto& well : wells_) {
    const std::size_t k = mesh_->findElement(well->x(), well->y());
    addSource(well.get(), k);
    if (std::find(wellElements.begin(), wellElements.end(), k) == wellElements.end())
      wellElements.push_back(k);
  }
  return wellElements;
}

void FVGeothermSite::addExchangeChains(const std::vector<std::size_t>& wellElements, double factor,
                                       double length) {
  for (std::size_t i = 0; i < mesh_->elements.size(); ++i)
    if (std::find(wellElements.begin(), wellElements.end(), i) == wellElements.end())
      addExchange(i, mesh_->H, mesh_->elements[i].volume / mesh_->H, factor,
                  surrounding_.rockDensity, surrounding_.rockHeatCapacity,
                  surrounding_.conductivity, length, T0_);
}

std::vector<Well*> FVGeothermSite::wells() const {
  std::vector<Well*> list;
  for (const auto& well : wells_)
    list.push_back(well.get());
  return list;
}
