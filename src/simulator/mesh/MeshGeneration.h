#pragma once

#include "simulator/mesh/FVGridLine.h"
#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"

#include <memory>
#include <vector>

/// Covers x0..x1 [m] with cells that start at width `first` [m] at x0 (`increasing`) or at x1,
/// and grow away from there up to `maxWidth` [m]. The width grows by an increment, which itself
/// grows by log10(scale) per cell. A run of length zero has no cell. Throws std::range_error if
/// the arguments let the cells shrink so that x1 cannot be reached.
FVGridLine gradedCells(double x0, double x1, double first, double maxWidth, bool increasing,
                       double scale);

/// Appends all cells to the line as they are.
void appendCells(FVGridLine& line, const FVGridLine& cells);

/// Appends the cells that start behind the last cell of the line, and smooths the seam: the last
/// cell is stretched to meet them, or divided where it would exceed `maxWidth` [m], and a first
/// cell of at most half its width is merged into it. Throws std::range_error if `maxWidth` does
/// not divide the gap into a number of cells that can be held.
void mergeCells(FVGridLine& line, const FVGridLine& cells, double maxWidth);

/// Makes a mesh whose cells are smallest at the wells and grow away from them. Wells further
/// apart than three times `minelesize` along an axis sit in the centre of a cell of that width.
/// @param H aquifer thickness [m]
/// @param amin extent of the model behind the last well in +x [m]
/// @param bmin extent before the first well in -x and on both sides in y [m]
/// @param wells one well at least; not changed
/// @param minelesize width of the cells at the wells [m]
/// @param maxelesize largest width of a cell, except far behind the wells [m]
/// @param scalefactor growth factor, raised until the mesh has fewer than `maxelements` cells or
///        raising it changes nothing any more
/// @param dispersion true when a dispersivity is set: the far tail then starts at twice `bmin`
/// Throws std::range_error if H, amin, bmin, minelesize, scalefactor or maxelesize is not above
/// zero, if amin or bmin is smaller than half of minelesize, and if the mesh would have more than
/// FVMesh::mostCells cells.
std::unique_ptr<FVMesh> makeWellDiscretisation(double H, double amin, double bmin,
                                               const std::vector<Well*>& wells, double minelesize,
                                               double maxelesize, double scalefactor,
                                               int maxelements, bool dispersion);
