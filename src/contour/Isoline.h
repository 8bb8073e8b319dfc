#pragma once

#include <QPointF>
#include <QVector>

#include <vector>

namespace TVR::Contour {

/// The line of one level, of several pieces: all points in one list, and for each piece, the last
/// one included, the index behind its last point. A line of one piece has no breaks. A closed piece
/// repeats its first point at the end.
struct Isoline {
  QVector<QPointF> points;
  QVector<int> breaks;
  double level = 0; ///< in the unit of the values
};

/// The pieces of an isoline, without empty ones. A break that is out of order or behind the last
/// point is taken for the nearest index that is possible.
std::vector<QVector<QPointF>> pieces(const Isoline& line);

} // namespace TVR::Contour
