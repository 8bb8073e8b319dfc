#include "page/painting/IsolineLabels.h"

#include "page/painting/LineClip.h"

#include <QLineF>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace TVR::Page {

namespace {

constexpr double leastLength = 6;   // of a line with labels, in widths of a label
constexpr double leaderStart = 2.5; // [mm] from a line to a label off it

/// A polyline by its length from the start.
class MeasuredLine {
public:
  explicit MeasuredLine(const QPolygonF& line) : line_(line), lengths_(1, 0) {
    for (int i = 1; i < line.size(); ++i)
      lengths_.push_back(lengths_.back() + QLineF(line[i - 1], line[i]).length());
  }

  double length() const { return lengths_.back(); }

  QPointF at(double place) const {
    const int i = behind(place);
    const double segment = lengths_[i] - lengths_[i - 1];
    const double share = segment > 0 ? (place - lengths_[i - 1]) / segment : 0;
    return line_[i - 1] + std::clamp(share, 0., 1.) * (line_[i] - line_[i - 1]);
  }

  /// How far the line leaves the straight one between two of its places.
  double bend(double from, double to) const {
    const QLineF chord(at(from), at(to));
    double farthest = to - from - chord.length();
    if (chord.length() == 0)
      return std::numeric_limits<double>::infinity();
    const QLineF normal = chord.normalVector().unitVector();
    for (int i = behind(from); i < line_.size() && lengths_[i] < to; ++i) {
      const QPointF away = line_[i] - chord.p1();
      farthest = std::max(farthest, std::abs(away.x() * normal.dx() + away.y() * normal.dy()));
    }
    return farthest;
  }

private:
  /// The index of the first point behind the place.
  int behind(double place) const {
    const auto found = std::upper_bound(lengths_.begin() + 1, lengths_.end() - 1, place);
    return static_cast<int>(found - lengths_.begin());
  }

  const QPolygonF& line_;
  std::vector<double> lengths_;
};

double uprightAngle(const QPointF& from, const QPointF& to) {
  const QPointF way = to - from;
  const double angle = std::atan2(way.y(), way.x()) * 180 / std::acos(-1.0);
  return angle > 90 ? angle - 180 : angle <= -90 ? angle + 180 : angle;
}

bool overlap(const QPolygonF& one, const QPolygonF& other) {
  return one.boundingRect().intersects(other.boundingRect()) && one.intersects(other);
}

bool isFree(const QPolygonF& outline, const QRectF& area, const std::vector<QPolygonF>& taken) {
  return area.contains(outline.boundingRect()) &&
         std::none_of(taken.begin(), taken.end(),
                      [&](const QPolygonF& other) { return overlap(outline, other); });
}

/// The box of a label around its middle, before it is turned.
QRectF boxOf(const LabelPlace& label) {
  const QSizeF& size = label.size;
  return {-size.width() / 2, -size.height() / 2, size.width(), size.height()};
}

/// From the box of a label to where it stands.
QTransform fromLabel(const LabelPlace& label) {
  QTransform turn;
  turn.translate(label.centre.x(), label.centre.y());
  turn.rotate(label.angle);
  return turn;
}

/// Whether a label stands on one of the lines.
bool touchesAny(const LabelPlace& label, const std::vector<QPolygonF>& lines) {
  const QRectF reach = label.outline().boundingRect();
  const QTransform toLabel = fromLabel(label).inverted();
  return std::any_of(lines.begin(), lines.end(), [&](const QPolygonF& line) {
    const QRectF other = line.boundingRect(); // of no width for an upright line
    return other.left() <= reach.right() && other.right() >= reach.left() &&
           other.top() <= reach.bottom() && other.bottom() >= reach.top() &&
           !clippedLine(toLabel.map(line), boxOf(label)).empty();
  });
}

/// The best place for a label around `wished`, at most `reach` away along the line.
std::optional<LabelPlace> bestPlace(const MeasuredLine& line, const QSizeF& label, double wished,
                                    double reach, const QRectF& area,
                                    const std::vector<QPolygonF>& taken,
                                    const std::vector<QPolygonF>& others) {
  const double tolerableBend = 0.25 * label.height();
  const double half = label.width() / 2;
  const int candidates = std::clamp(static_cast<int>(reach / half), 2, 12);
  std::optional<LabelPlace> best;
  double leastCost = std::numeric_limits<double>::infinity();
  for (int k = -candidates; k <= candidates; ++k) {
    const double offset = reach * k / candidates;
    const double from = wished + offset - half;
    const double to = wished + offset + half;
    if (from < 0 || to > line.length())
      continue;
    const double bend = line.bend(from, to);
    const double cost = bend + 0.02 * std::abs(offset);
    if (bend > tolerableBend || cost >= leastCost)
      continue;
    const QPointF start = line.at(from);
    const QPointF end = line.at(to);
    const LabelPlace place{(start + end) / 2, uprightAngle(start, end), label};
    if (isFree(place.outline(), area, taken) && !touchesAny(place, others)) {
      best = place;
      leastCost = cost;
    }
  }
  return best;
}

/// The label whose box lies `distance` from the anchor in a direction.
LabelPlace labelTowards(const QPointF& anchor, const QPointF& direction, double distance,
                        const QSizeF& label) {
  return {anchor + QPointF(direction.x() * (distance + label.width() / 2),
                           direction.y() * (distance + label.height() / 2)),
          0, label};
}

/// The line from the rim around the anchor to the label's box.
QLineF leaderTo(const LabelPlace& label, const QPointF& anchor, double clearance) {
  const QPointF way = label.centre - anchor;
  const double inBox = std::max(std::abs(way.x()) / (label.size.width() / 2),
                                std::abs(way.y()) / (label.size.height() / 2));
  const double length = std::hypot(way.x(), way.y());
  return {anchor + way * (clearance / length), label.centre - way / inBox};
}

struct WayOff {
  QPointF anchor;
  QPointF direction; ///< of length 1
};

/// Ways off a line, away from its middle: the label of a loop does not lie in it.
std::vector<WayOff> waysOff(const MeasuredLine& line, const QPointF& middle) {
  constexpr int count = 8;
  std::vector<WayOff> ways;
  for (int k = 0; k < count; ++k) {
    const QPointF anchor = line.at(line.length() * (k + 0.5) / count);
    const QPointF away = anchor - middle;
    const double length = std::hypot(away.x(), away.y());
    ways.push_back({anchor, length > 0 ? away / length : QPointF(1, 0)});
  }
  return ways;
}

/// Whether a leader runs over something that does not lie where it begins.
bool crossesAny(const QLineF& leader, const std::vector<QPolygonF>& taken) {
  return std::any_of(taken.begin(), taken.end(), [&](const QPolygonF& outline) {
    if (outline.containsPoint(leader.p1(), Qt::OddEvenFill))
      return false;
    for (int i = 1; i < outline.size(); ++i)
      if (leader.intersects({outline[i - 1], outline[i]}, nullptr) == QLineF::BoundedIntersection)
        return true;
    return false;
  });
}

/// What a place off a line does if it can, besides keeping the label off what is there.
struct Wishes {
  bool labelOffLines;
  bool leaderOffTaken;
};

} // namespace

QPolygonF LabelPlace::outline() const {
  QPolygonF corners = fromLabel(*this).map(QPolygonF(boxOf(*this)));
  return corners;
}

std::vector<LabelPlace> placeLabels(const QPolygonF& line, const QSizeF& label, double distance,
                                    const QRectF& area, std::vector<QPolygonF>& taken,
                                    const std::vector<QPolygonF>& others) {
  std::vector<LabelPlace> places;
  if (line.size() < 2 || label.isEmpty())
    return places;
  const MeasuredLine measured(line);
  if (!(measured.length() >= leastLength * label.width()) || !std::isfinite(measured.length()))
    return places;
  const double spacing = std::max(distance, leastLength * label.width());
  const int count = std::max(1, qRound(std::min(measured.length() / spacing, 1000.)));
  const double share = measured.length() / count;
  for (int k = 0; k < count; ++k) {
    const auto place =
        bestPlace(measured, label, (k + 0.5) * share, share / 2, area, taken, others);
    if (!place)
      continue;
    places.push_back(*place);
    taken.push_back(place->outline());
  }
  return places;
}

double lengthOf(const QPolygonF& line) {
  return MeasuredLine(line).length();
}

std::optional<PlaceBeside> placeBeside(const QPointF& anchor, double clearance, double nearest,
                                       const QSizeF& label, const QRectF& area,
                                       std::vector<QPolygonF>& taken) {
  constexpr double slant = 0.7;
  constexpr std::array directions = {
      QPointF(1, 0), QPointF(slant, -slant), QPointF(slant, slant),   QPointF(0, -1),
      QPointF(0, 1), QPointF(-1, 0),         QPointF(-slant, -slant), QPointF(-slant, slant),
  };
  constexpr std::array steps = {0., 2.5, 5., 8., 12.}; // [mm]
  for (const double step : steps)
    for (const QPointF& direction : directions) {
      const LabelPlace place = labelTowards(anchor, direction, clearance + nearest + step, label);
      if (!isFree(place.outline(), area, taken))
        continue;
      taken.push_back(place.outline());
      const bool touches = nearest + step == 0;
      return PlaceBeside{place, touches ? QLineF() : leaderTo(place, anchor, clearance)};
    }
  return std::nullopt;
}

std::optional<PlaceBeside> placeOffLine(const QPolygonF& line, const QSizeF& label,
                                        const QRectF& area, const std::vector<QPolygonF>& lines,
                                        std::vector<QPolygonF>& taken) {
  const MeasuredLine measured(line);
  if (line.size() < 2 || label.isEmpty() || !(measured.length() > 0) ||
      !std::isfinite(measured.length()))
    return std::nullopt;
  for (const Wishes& wishes : {Wishes{true, true}, Wishes{false, true}, Wishes{false, false}})
    for (const double distance : {leaderStart, 2 * leaderStart, 4 * leaderStart, 6 * leaderStart})
      for (const auto& [anchor, direction] : waysOff(measured, line.boundingRect().center())) {
        const LabelPlace place = labelTowards(anchor, direction, distance, label);
        const QLineF leader = leaderTo(place, anchor, 0);
        if (!isFree(place.outline(), area, taken) ||
            (wishes.labelOffLines && touchesAny(place, lines)) ||
            (wishes.leaderOffTaken && crossesAny(leader, taken)))
          continue;
        taken.push_back(place.outline());
        return PlaceBeside{place, leader};
      }
  return std::nullopt;
}

} // namespace TVR::Page
