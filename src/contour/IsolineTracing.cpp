#include "contour/IsolineTracing.h"

#include "contour/CentreMesh.h"

#include <algorithm>
#include <cmath>

namespace TVR::Contour {

namespace {

/// A line that strays from its chord by more than this gets a point between [side of the patch].
constexpr double chordTolerance = 0.01;
/// A crossing nearer to a point than this is taken to lie on it [length of the side].
constexpr double snapDistance = 1e-9;

enum State : char { Below = 0, Above = 1, Missing = 2 };

/// The level line of a bilinear function on the unit square is a branch of the hyperbola
/// (x - x0)(y - y0) = const, or a straight line if the function has no mixed term.
class Hyperbola {
public:
  /// `excess` holds value minus level at (0,0), (1,0), (1,1) and (0,1).
  explicit Hyperbola(const std::array<double, 4>& excess)
      : alongX_(excess[1] - excess[0]), alongY_(excess[3] - excess[0]),
        mixed_(excess[0] - excess[1] + excess[2] - excess[3]) {}

  /// Appends the points that a polyline between `from` and `to` on one branch needs in between.
  void refine(const QPointF& from, const QPointF& to, int depth, QVector<QPointF>& between) const {
    const QPointF chord = to - from;
    const QPointF middle = (from + to) / 2;
    const double slope = std::hypot(alongX_ + mixed_ * middle.y(), alongY_ + mixed_ * middle.x());
    const double error = std::abs(mixed_ * chord.x() * chord.y()) / 4;
    if (depth == 0 || !(error > chordTolerance * slope))
      return;
    // The tangent is parallel to the chord at the geometric means of the distances from the axes.
    const QPointF axes(-alongY_ / mixed_, -alongX_ / mixed_);
    const QPointF farthest(axes.x() + geometricMean(from.x() - axes.x(), to.x() - axes.x()),
                           axes.y() + geometricMean(from.y() - axes.y(), to.y() - axes.y()));
    if (!(farthest.x() >= 0 && farthest.x() <= 1 && farthest.y() >= 0 && farthest.y() <= 1))
      return;
    refine(from, farthest, depth - 1, between);
    between.append(farthest);
    refine(farthest, to, depth - 1, between);
  }

private:
  static double geometricMean(double a, double b) {
    return std::copysign(std::sqrt(std::max(0.0, a * b)), a + b);
  }

  double alongX_;
  double alongY_;
  double mixed_;
};

/// Follows the line of one level through the patches. Each side of a patch is crossed once or not
/// at all, so that the line is a graph of crossed sides, joined within the patches.
class LineTracer {
public:
  LineTracer(const CentreMesh& mesh, const std::vector<double>& field)
      : mesh_(mesh), field_(field), states_(field.size()), isDone_(mesh.sides().size()) {}

  Isoline trace(double level);

private:
  void findCrossings();
  void follow(int start);
  void finishPiece(int begin);

  bool isUsable(int patch) const;
  bool isCrossed(int side) const {
    const auto& ends = mesh_.sides()[side].ends;
    return (states_[ends[0]] ^ states_[ends[1]]) == 1;
  }
  int exitOf(const CentreMesh::Patch& patch, int entry) const;
  bool saddleIsAbove(const CentreMesh::Patch& patch) const;
  double crossing(int above, int below) const;
  QPointF pointOn(int side) const;
  QPointF pointInSquare(const CentreMesh::Patch& patch, int i) const;
  void passThrough(const CentreMesh::Patch& patch, int entry, int exit);

  const CentreMesh& mesh_;
  const std::vector<double>& field_;
  double level_ = 0;
  std::vector<char> states_; ///< by point
  std::vector<char> isDone_; ///< by side
  std::vector<int> crossed_; ///< sides, rising
  QVector<QPointF> between_;
  Isoline line_;
};

Isoline LineTracer::trace(double level) {
  level_ = level;
  line_ = {{}, {}, level};
  if (!std::isfinite(level))
    return line_;
  findCrossings();
  // A piece with ends is followed from one of them; what is left then are closed pieces.
  for (int side : crossed_) {
    const auto& patches = mesh_.sides()[side].patches;
    if (!isDone_[side] && isUsable(patches[0]) != isUsable(patches[1]))
      follow(side);
  }
  for (int side : crossed_)
    if (!isDone_[side] && isUsable(mesh_.sides()[side].patches[0]))
      follow(side);
  if (line_.breaks.size() == 1)
    line_.breaks.clear();
  return line_;
}

void LineTracer::findCrossings() {
  for (std::size_t i = 0; i < field_.size(); ++i)
    states_[i] = std::isnan(field_[i]) ? Missing : field_[i] >= level_ ? Above : Below;
  crossed_.clear();
  // What the loop over all sides reads is held in variables of its own: else it is fetched again
  // for each side, as what is written might be part of it.
  const CentreMesh::Side* const sides = mesh_.sides().data();
  const char* const states = states_.data();
  const int count = static_cast<int>(isDone_.size());
  for (int side = 0; side < count; ++side)
    if ((states[sides[side].ends[0]] ^ states[sides[side].ends[1]]) == 1) {
      crossed_.push_back(side);
      isDone_[side] = 0;
    }
}

bool LineTracer::isUsable(int patch) const {
  if (patch < 0)
    return false;
  for (int corner : mesh_.patches()[patch].corners)
    if (corner >= 0 && states_[corner] == Missing)
      return false;
  return true;
}

/// The decider of Nielson and Hamann (1991): what the saddle of the patch is on the same side of
/// the level with is connected through it.
bool LineTracer::saddleIsAbove(const CentreMesh::Patch& patch) const {
  std::array<double, 4> excess;
  for (int i = 0; i < 4; ++i)
    excess[i] = field_[patch.corners[i]] - level_;
  const double product = excess[0] * excess[2] - excess[1] * excess[3];
  return excess[0] >= 0 ? product >= 0 : product <= 0;
}

int LineTracer::exitOf(const CentreMesh::Patch& patch, int entry) const {
  const int size = patch.size();
  int exit = -1;
  int count = 0;
  for (int i = 0; i < size; ++i)
    if (isCrossed(patch.sides[i])) {
      ++count;
      if (i != entry)
        exit = i;
    }
  if (count < 4)
    return exit;
  // The line goes around the next corner that the saddle is not connected with.
  const State cutOff = saddleIsAbove(patch) ? Below : Above;
  return states_[patch.corners[entry]] == cutOff ? (entry + 3) % 4 : (entry + 1) % 4;
}

/// Where the side is crossed, as a share of its length from the end above; halves, since the
/// difference of two values may be too large for a number.
double LineTracer::crossing(int above, int below) const {
  const double share = (field_[above] / 2 - level_ / 2) / (field_[above] / 2 - field_[below] / 2);
  return share < snapDistance ? 0 : share > 1 - snapDistance ? 1 : share;
}

QPointF LineTracer::pointOn(int side) const {
  auto [above, below] = mesh_.sides()[side].ends;
  if (states_[above] != Above)
    std::swap(above, below);
  const double share = crossing(above, below);
  if (share == 1)
    return mesh_.points()[below];
  return mesh_.points()[above] + share * (mesh_.points()[below] - mesh_.points()[above]);
}

/// The crossing of side `i` where the patch is the unit square.
QPointF LineTracer::pointInSquare(const CentreMesh::Patch& patch, int i) const {
  static constexpr double x[] = {0, 1, 1, 0, 0};
  static constexpr double y[] = {0, 0, 1, 1, 0};
  const int from = patch.corners[i];
  const int to = patch.corners[(i + 1) % 4];
  const double share = states_[from] == Above ? crossing(from, to) : 1 - crossing(to, from);
  return {x[i] + share * (x[i + 1] - x[i]), y[i] + share * (y[i + 1] - y[i])};
}

/// Appends the points between those on the sides `entry` and `exit`.
void LineTracer::passThrough(const CentreMesh::Patch& patch, int entry, int exit) {
  if (patch.size() < 4)
    return;
  std::array<double, 4> excess;
  for (int i = 0; i < 4; ++i)
    excess[i] = field_[patch.corners[i]] - level_;
  between_.clear();
  Hyperbola(excess).refine(pointInSquare(patch, entry), pointInSquare(patch, exit), 4, between_);
  for (const QPointF& point : between_) {
    const auto corner = [&](int i) { return mesh_.points()[patch.corners[i]]; };
    line_.points.append((1 - point.y()) * ((1 - point.x()) * corner(0) + point.x() * corner(1)) +
                        point.y() * ((1 - point.x()) * corner(3) + point.x() * corner(2)));
  }
}

void LineTracer::follow(int start) {
  const int begin = line_.points.size();
  const auto& sides = mesh_.sides();
  int side = start;
  int patch = sides[start].patches[isUsable(sides[start].patches[0]) ? 0 : 1];
  do {
    isDone_[side] = 1;
    line_.points.append(pointOn(side));
    const CentreMesh::Patch& here = mesh_.patches()[patch];
    const int entry = static_cast<int>(std::find(here.sides.begin(), here.sides.end(), side) -
                                       here.sides.begin());
    const int exit = exitOf(here, entry);
    passThrough(here, entry, exit);
    side = here.sides[exit];
    patch = sides[side].patches[sides[side].patches[0] == patch ? 1 : 0];
  } while (side != start && isUsable(patch));
  isDone_[side] = 1;
  line_.points.append(pointOn(side));
  finishPiece(begin);
}

/// Takes out points that repeat the one before, and a piece of which only one is left.
void LineTracer::finishPiece(int begin) {
  QVector<QPointF>& points = line_.points;
  // Bit by bit: the points' own comparison forgives a little.
  const auto isSame = [](const QPointF& a, const QPointF& b) {
    return a.x() == b.x() && a.y() == b.y();
  };
  const auto end = std::unique(points.begin() + begin, points.end(), isSame);
  points.erase(end, points.end());
  if (points.size() < begin + 2)
    points.resize(begin);
  else
    line_.breaks.append(points.size());
}

} // namespace

std::vector<Isoline> traceIsolines(const CentreMesh& mesh, const std::vector<double>& values,
                                   const std::vector<double>& levels) {
  const std::vector<double> field = mesh.field(values);
  LineTracer tracer(mesh, field);
  std::vector<Isoline> lines;
  lines.reserve(levels.size());
  for (double level : levels)
    lines.push_back(tracer.trace(level));
  return lines;
}

std::vector<Isoline> traceIsolines(const GridMesh& mesh, const std::vector<double>& values,
                                   const std::vector<double>& levels) {
  return traceIsolines(CentreMesh(mesh), values, levels);
}

Isoline traceIsoline(const GridMesh& mesh, const std::vector<double>& values, double level) {
  return traceIsolines(mesh, values, {level}).front();
}

} // namespace TVR::Contour
