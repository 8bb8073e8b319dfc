#include "simulator/mesh/FVMesh.h"

#include <ostream>

FVMesh::FVMesh(const FVGridLine& xCells, const FVGridLine& yCells, double thickness)
    : nx(static_cast<std::int32_t>(xCells.count())), ny(static_cast<std::int32_t>(yCells.count())),
      H(thickness), xLine(xCells), yLine(yCells) {
  const std::size_t cells = xLine.count() * yLine.count();
  elements.reserve(cells);
  connections.reserve(2 * cells);
  quads.reserve(cells);
  allQuads.reserve(cells + 2 * yLine.count());
  addRows();
  addLeftBoundary();
  addRightBoundary();
}

void FVMesh::addRows() {
  for (std::int32_t row = 0; row < ny; ++row) {
    const auto j = static_cast<std::size_t>(row);
    for (std::int32_t column = 0; column < nx; ++column) {
      const auto i = static_cast<std::size_t>(column);
      const std::int32_t e = nx * row + column;
      elements.push_back({xLine.width(i) * yLine.width(j) * H, xLine.centre(i), yLine.centre(j)});
      if (column > 0) {
        const double area = yLine.width(j) * H;
        connections.push_back(
            {xLine.halfWidth(i - 1), xLine.halfWidth(i), area, area, 0.0, e - 1, e});
      }
      if (row > 0) {
        const double area = xLine.width(i) * H;
        connections.push_back(
            {yLine.halfWidth(j - 1), yLine.halfWidth(j), area, 0.0, area, e - nx, e});
      }
      if (row < ny - 1 && column < nx - 1) {
        const Quad corners{e + 1, e + 2, nx + e + 2, nx + e + 1};
        quads.push_back(corners);
        allQuads.push_back(corners);
      }
    }
  }
}

void FVMesh::addLeftBoundary() {
  const std::int32_t n = nx * ny;
  for (std::int32_t j = 0; j < ny; ++j) {
    const double width = yLine.width(static_cast<std::size_t>(j));
    boundaryElements.push_back({width * xLine.width(0) * H, xLine.centre(0) - xLine.halfWidth(0),
                                yLine.centre(static_cast<std::size_t>(j))});
    boundaryConnections.push_back({xLine.halfWidth(0), 0.0, width * H, width * H, 0.0, nx * j, j});
    if (j < ny - 1)
      allQuads.push_back({n + j + 1, nx * j + 1, (j + 1) * nx + 1, n + j + 2});
  }
}

void FVMesh::addRightBoundary() {
  const std::int32_t n = nx * ny;
  const std::size_t last = xLine.count() - 1;
  for (std::int32_t j = 0; j < ny; ++j) {
    const double width = yLine.width(static_cast<std::size_t>(j));
    boundaryElements.push_back({xLine.width(last) * width * H,
                                xLine.centre(last) + xLine.halfWidth(last),
                                yLine.centre(static_cast<std::size_t>(j))});
    boundaryConnections.push_back(
        {xLine.halfWidth(last), 0.0, width * H, width * H, 0.0, (j + 1) * nx - 1, ny + j});
    if (j < ny - 1)
      allQuads.push_back({(j + 1) * nx, n + ny + j + 1, n + ny + j + 2, (j + 2) * nx});
  }
}

std::size_t FVMesh::findElement(double x, double y) const {
  const std::int32_t column = xLine.find(x);
  const std::int32_t row = yLine.find(y);
  const auto index = static_cast<std::uint32_t>(nx * row + column);
  if (index > static_cast<std::uint32_t>(nx * ny - 1))
    throw "rangerror";
  return index;
}

void FVMesh::writeZoneHeader(std::ostream& stream, const std::string& title) const {
  stream << "ZONE T=\"" << title << "\", N=" << elements.size() << ", E=" << quads.size()
         << ", DATAPACKING = BLOCK, ZONETYPE=FEQUADRILATERAL, CONNECTIVITYSHAREZONE=1\n";
}

void FVMesh::writeCoordinates(std::ostream& stream) const {
  for (const FVMeshElement& element : elements)
    stream << element.x << '\n';
  for (const FVMeshElement& element : elements)
    stream << element.y << '\n';
  stream << '\n';
}
