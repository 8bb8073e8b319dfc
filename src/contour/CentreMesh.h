#pragma once

#include <QPointF>

#include <array>
#include <vector>

namespace TVR::Contour {

struct GridMesh;

/// The patches between the cell centres of a mesh, on each of which a field of cell values is one
/// simple function. Around a node with four cells, and between two cells and a straight border,
/// lies a patch of four corners (bilinear); at a corner of the mesh the fourth is the node itself.
/// Around any other node lie triangles (linear) that meet in it.
///
/// Depends on the mesh only: one serves all fields and levels. Cells that name a missing node, or a
/// node twice, are left out; a cell without a centre has it at the mean of its nodes.
class CentreMesh {
public:
  /// Corners and sides in their order around the patch; side i joins the corners i and i + 1. The
  /// fourth of either is -1 in a triangle.
  struct Patch {
    std::array<int, 4> corners; ///< indices of points
    std::array<int, 4> sides;   ///< indices of sides
    int size() const { return corners[3] < 0 ? 3 : 4; }
  };
  /// A straight line between two points, with the patches on it; -1 where there is none.
  struct Side {
    std::array<int, 2> ends;
    std::array<int, 2> patches{-1, -1};
  };

  explicit CentreMesh(const GridMesh& mesh);

  /// The centres by cell, then the points on the border and between the cells.
  const std::vector<QPointF>& points() const { return points_; }
  const std::vector<Side>& sides() const { return sides_; }
  const std::vector<Patch>& patches() const { return patches_; }

  /// The field at the points, from its values by cell. On the border it is extrapolated from the
  /// two cells before it, within the range of all values; a cell next to one without a value is
  /// continued as it is. Not a number where there is none: a missing or infinite value, a cell that
  /// was left out or lies nowhere.
  std::vector<double> field(const std::vector<double>& cellValues) const;

private:
  /// A point on the border: beyond `cell`, seen from `before`, by `reach` times their distance.
  struct BorderPoint {
    int cell;
    int before; ///< -1 for none
    double reach;
  };
  /// A share of a point's value in that of a later point.
  struct Share {
    int point;
    double weight;
  };
  class Builder;

  std::vector<QPointF> points_;
  std::vector<Side> sides_;
  std::vector<Patch> patches_;
  std::vector<char> usable_; ///< by cell
  std::vector<BorderPoint> borderPoints_;
  std::vector<Share> shares_;
  std::vector<int> shareEnds_; ///< by point behind the border points: end of its shares
};

} // namespace TVR::Contour
