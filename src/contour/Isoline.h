#pragma once

#include <QPointF>
#include <QVector>

#include <vector>

namespace TVR::Contour {

/// A line of several pieces: all points in one list, and for each piece, the last one included,
/// the index behind its last point. A line of one piece has no breaks. A closed piece repeats its
/// first point at the end.
struct Isoline {
  QVector<QPointF> points;
  QVector<int> breaks;
};

/// The pieces of an isoline, without empty ones. A break that is out of order or behind the last
/// point is taken for the nearest index that is possible.
std::vector<QVector<QPointF>> pieces(const Isoline& line);

} // namespace TVR::Contour
