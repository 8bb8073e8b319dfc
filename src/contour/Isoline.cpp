#include "contour/Isoline.h"

#include <algorithm>

namespace TVR::Contour {

std::vector<QVector<QPointF>> pieces(const Isoline& line) {
  std::vector<QVector<QPointF>> parts;
  int first = 0;
  const auto addUntil = [&](int end) {
    end = std::clamp(end, first, line.points.size());
    if (end > first)
      parts.push_back(line.points.mid(first, end - first));
    first = end;
  };
  for (const int end : line.breaks)
    addUntil(end);
  addUntil(line.points.size());
  return parts;
}

} // namespace TVR::Contour
