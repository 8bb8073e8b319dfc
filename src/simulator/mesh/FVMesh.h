#pragma once

#include "simulator/mesh/FVGridLine.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

/// One cell of the mesh: volume [m3] and centre [m] in model coordinates.
struct FVMeshElement {
  double volume;
  double x;
  double y;
};

/// One link of the mesh; lengths and areas as in FVConnection. i1 counts in the mesh's
/// `elements`; i2 does so too, or in `boundaryElements` for a boundary link.
struct FVMeshConnection {
  double d1;
  double d2;
  double a;
  double ax;
  double ay;
  std::int32_t i1;
  std::int32_t i2;
};

/// Rectilinear mesh of one horizontal layer. Cells are numbered row by row: index = nx * row +
/// column, rows with ascending y, columns with ascending x. Each row has one boundary element on
/// its left (numbers 0 .. ny - 1) and one on its right (ny .. 2 ny - 1); the edges along the
/// first and the last row are closed. A value type.
class FVMesh {
public:
  using Quad = std::array<std::int32_t, 4>;

  /// Most cells of a mesh that is made around wells, and of a single run of cells on an axis: far
  /// above what can be solved, far below what memory and 32-bit element numbers hold.
  static constexpr std::size_t mostCells = 10'000'000;

  /// Builds everything from the cells of the two axes and the aquifer thickness [m]. Neither
  /// axis may be empty.
  FVMesh(const FVGridLine& xCells, const FVGridLine& yCells, double thickness);

  /// Index of the element at the point (x, y) [m]. Throws the text "rangerror" (const char*) if
  /// the index, taken as unsigned, lies behind the last element. A point beside the mesh may
  /// land on another row instead.
  std::size_t findElement(double x, double y) const;

  /// Writes the zone line of a Tecplot frame over the elements and `quads`.
  void writeZoneHeader(std::ostream& stream, const std::string& title) const;
  /// Writes x and then y of all elements, one per line, and an empty line.
  void writeCoordinates(std::ostream& stream) const;

  std::vector<FVMeshElement> elements;
  std::vector<FVMeshConnection> connections;
  std::vector<FVMeshElement> boundaryElements;
  std::vector<FVMeshConnection> boundaryConnections;
  /// Output quadrilaterals between cell centres; corners are element numbers from 1.
  std::vector<Quad> quads;
  /// `quads` and the quadrilaterals that reach the boundary elements, which are numbered on
  /// behind the elements.
  std::vector<Quad> allQuads;
  std::int32_t nx; ///< cells along x
  std::int32_t ny; ///< cells along y
  double H;        ///< aquifer thickness [m]
  FVGridLine xLine;
  FVGridLine yLine;

private:
  void addRows();
  void addLeftBoundary();
  void addRightBoundary();
};
