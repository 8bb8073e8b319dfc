#include "page/painting/LineClip.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace TVR::Page {

namespace {

/// The part of a straight line in the rectangle (Liang and Barsky, 1984).
std::optional<QLineF> clippedSegment(const QPointF& from, const QPointF& to, const QRectF& within) {
  double enter = 0;
  double leave = 1;
  const QPointF way = to - from;
  const auto cut = [&](double across, double distance) {
    if (across == 0)
      return distance >= 0;
    const double at = distance / across;
    (across < 0 ? enter : leave) = across < 0 ? std::max(enter, at) : std::min(leave, at);
    return enter <= leave;
  };
  if (!std::isfinite(way.x()) || !std::isfinite(way.y()) ||
      !cut(-way.x(), from.x() - within.left()) || !cut(way.x(), within.right() - from.x()) ||
      !cut(-way.y(), from.y() - within.top()) || !cut(way.y(), within.bottom() - from.y()))
    return {};
  return QLineF(enter == 0 ? from : from + enter * way, leave == 1 ? to : from + leave * way);
}

} // namespace

std::vector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& rectangle) {
  std::vector<QPolygonF> parts;
  for (int i = 1; i < line.size(); ++i) {
    const auto segment = clippedSegment(line[i - 1], line[i], rectangle);
    if (!segment)
      continue;
    if (parts.empty() || parts.back().last() != segment->p1())
      parts.emplace_back(QVector<QPointF>{segment->p1()});
    if (segment->p2() != segment->p1())
      parts.back().append(segment->p2());
  }
  parts.erase(std::remove_if(parts.begin(), parts.end(),
                             [](const QPolygonF& part) { return part.size() < 2; }),
              parts.end());
  return parts;
}

} // namespace TVR::Page
