#pragma once

#include <vector>

/// A link between two cells through their common face. E is the element type. The two elements
/// are not owned and outlive the link.
template <class E>
class FVConnection {
public:
  /// Arguments in the order of the fields below.
  FVConnection(double toFace, double fromFace, double area, double areaX, double areaY, E* first,
               E* second)
      : d1(toFace), d2(fromFace), a(area), ax(areaX), ay(areaY), e1(first), e2(second) {}
  virtual ~FVConnection() = default;

  /// Writes into out[0] the flow through the face, counted as added to the first element and
  /// taken from the second: a negative value leaves the first element.
  /// `demandStep` is the index of the current demand period; `out` holds one entry at least.
  virtual void flux(std::vector<double>& out, int demandStep) const = 0;

  double d1; ///< centre of the first element to the face [m]
  double d2; ///< face to the centre of the second element [m]; 0 towards a boundary element
  double a;  ///< face area [m2]
  double ax; ///< face area counted in the x direction [m2]: a for an x link, otherwise 0
  double ay; ///< face area counted in the y direction [m2]: a for a y link, otherwise 0
  E* e1;     ///< first element
  E* e2;     ///< second element
};
