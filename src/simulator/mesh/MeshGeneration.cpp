#include "simulator/mesh/MeshGeneration.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

/// Lengths and growth that all runs of one axis share.
struct AxisRules {
  double minimum; ///< width of the cells at the wells [m]
  double maximum; ///< largest width [m]
  double scale;   ///< growth factor

  double half() const { return minimum * 0.5; }
  FVGridLine growing(double x0, double x1) const {
    return gradedCells(x0, x1, minimum, maximum, true, scale);
  }
  FVGridLine shrinking(double x0, double x1) const {
    return gradedCells(x0, x1, minimum, maximum, false, scale);
  }
};

void requirePositive(double value, const char* name) {
  if (value <= 0.0)
    throw std::range_error(std::string("Error in makeWellDiscretisation: ") + name + " <= 0");
}

/// The cells around the first and the last well reach half a cell beyond them. Shorter extents
/// would turn the runs behind these cells around, and their cells would overlap.
void requireExtentsOfHalfACell(double amin, double bmin, double minelesize) {
  if (std::min(amin, bmin) < minelesize * 0.5)
    throw std::range_error("Error in makeWellDiscretisation: extents smaller than half a cell");
}

void requireCountThatFits(double count) {
  if (count > static_cast<double>(FVMesh::mostCells))
    throw std::range_error(
        "Error in makeWellDiscretisation: " + std::to_string(static_cast<long long>(count)) +
        " cells, more than " + std::to_string(FVMesh::mostCells));
}

std::vector<double> sortedWithoutDuplicates(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  return values;
}

/// Cells from half a cell before the well at p to half a cell before its neighbour at q.
void addBetween(FVGridLine& line, double p, double q, const AxisRules& rules) {
  const double h = rules.half();
  const double gap = std::abs(q - p);
  if (gap > 3 * rules.minimum) {
    const double middle = (q + p) * 0.5;
    appendCells(line, rules.growing(p - h, p + h));
    mergeCells(line, rules.growing(p + h, middle), rules.maximum);
    appendCells(line, rules.shrinking(middle, q - h));
  } else if (gap > 2 * rules.minimum) {
    const double middle = (q + p) * 0.5 - h;
    appendCells(line, rules.growing(p - h, middle));
    appendCells(line, rules.shrinking(middle, q - h));
  } else {
    appendCells(line, rules.shrinking(p - h, q - h));
  }
}

/// The part that both axes share: from the extent before the first well up to and including the
/// cell of the last one.
FVGridLine cellsUpToLastWell(const std::vector<double>& wells, double extentBefore,
                             const AxisRules& rules) {
  const double h = rules.half();
  FVGridLine line = rules.shrinking(wells.front() - extentBefore, wells.front() - h);
  for (std::size_t i = 1; i < wells.size(); ++i)
    addBetween(line, wells[i - 1], wells[i], rules);
  appendCells(line, rules.growing(wells.back() - h, wells.back() + h));
  return line;
}

FVGridLine makeXLine(const std::vector<double>& wells, double a, double b, bool dispersion,
                     const AxisRules& rules) {
  constexpr double widestFarCell = 1000.0; // [m]
  FVGridLine line = cellsUpToLastWell(wells, b, rules);
  const double last = wells.back();
  const double start = last + rules.half();
  const double limit = dispersion ? 2.0 * b : a != b ? 10.0 * b : 1.0 * b;
  if (limit > a) {
    mergeCells(line, rules.growing(start, last + a), rules.maximum);
    return line;
  }
  mergeCells(line, rules.growing(start, last + limit), rules.maximum);
  const double width = line.width(line.count() - 1);
  appendCells(line, gradedCells(last + limit, last + a, width, widestFarCell, true, rules.scale));
  return line;
}

FVGridLine makeYLine(const std::vector<double>& wells, double b, const AxisRules& rules) {
  FVGridLine line = cellsUpToLastWell(wells, b, rules);
  mergeCells(line, rules.growing(wells.back() + rules.half(), wells.back() + b), rules.maximum);
  return line;
}

/// Smallest number of equal cells, two at least, that divide the gap [m] so that none is wider than
/// `maxWidth` [m]. Throws std::range_error where no bearable number does.
int cellsInGap(double gap, double maxWidth) {
  const double ratio = gap / maxWidth;
  // Negated, so that not-a-number is refused too.
  if (!(maxWidth > 0.0 && ratio < static_cast<double>(FVMesh::mostCells)))
    throw std::range_error("Error in makeWellDiscretisation: a gap of " + std::to_string(gap) +
                           " cannot be divided into cells of " + std::to_string(maxWidth));
  int n = std::max(2, static_cast<int>(std::ceil(ratio)));
  // The ratio is rounded, so that its ceiling may be one off on either side.
  while (n > 2 && gap / (n - 1) <= maxWidth)
    --n;
  while (gap / n > maxWidth)
    ++n;
  return n;
}

/// Distances of the cell faces from the fine end of a run of length |x1 - x0|.
std::vector<double> gradedPositions(double x0, double x1, double first, double maxWidth,
                                    double scale) {
  const double length = x1 - x0;
  double width = first > length ? length : first;
  double position = width;
  double increment = width;
  std::vector<double> positions{0.0};
  bool firstTurn = true;
  // Negated, so that not-a-number goes on to the check of the count.
  while (!(std::abs(x0 + positions.back() - x1) <= width)) {
    if (positions.size() > FVMesh::mostCells)
      throw std::range_error("Error in makeWellDiscretisation: the cells do not reach " +
                             std::to_string(x1));
    positions.push_back(position);
    // Required oddity: the increment, not the width, grows by log10(scale). The detour through
    // the power overflows to infinity for large increments; maxWidth then takes over. log10(scale)
    // as a sum would not.
    if (!firstTurn)
      increment = std::log10(std::pow(10.0, increment) * scale);
    firstTurn = false;
    width = std::min(increment + width, maxWidth);
    position += width;
  }
  if (std::abs(positions.back() - length) / width > 0.5)
    positions.push_back(length);
  else
    positions.back() = length;
  return positions;
}

} // namespace

FVGridLine gradedCells(double x0, double x1, double first, double maxWidth, bool increasing,
                       double scale) {
  std::vector<double> positions = gradedPositions(x0, x1, first, maxWidth, scale);
  if (!increasing)
    std::reverse(positions.begin(), positions.end());
  const double length = x1 - x0;
  FVGridLine line;
  double current = x0;
  for (const double position : positions) {
    const double target = increasing ? x0 + position : length - position + x0;
    const double width = target - current;
    if (width > 0.0) {
      line.append(current, width);
      current += width;
    }
  }
  return line;
}

void appendCells(FVGridLine& line, const FVGridLine& cells) {
  for (const FVGridLine::Cell& cell : cells.cells())
    line.append(cell.start, cell.width);
}

void mergeCells(FVGridLine& line, const FVGridLine& cells, double maxWidth) {
  if (line.count() == 0) {
    appendCells(line, cells);
    return;
  }
  const double start = line.start(line.count() - 1);
  std::size_t next = 0;
  while (next < cells.count() && cells.start(next) <= start)
    ++next;
  if (next == cells.count())
    return;

  const double gap = cells.start(next) - start;
  if (gap < maxWidth) {
    line.setLastWidth(gap);
  } else {
    const int n = cellsInGap(gap, maxWidth);
    const double width = gap / n;
    line.setLastWidth(width);
    for (int i = 1; i < n; ++i)
      line.append(start + i * width, width);
  }

  const double lastWidth = line.width(line.count() - 1);
  if (cells.width(next) / lastWidth <= 0.5) {
    line.setLastWidth(lastWidth + cells.width(next));
    ++next;
  }
  for (; next < cells.count(); ++next)
    line.append(cells.start(next), cells.width(next));
}

std::unique_ptr<FVMesh> makeWellDiscretisation(double H, double amin, double bmin,
                                               const std::vector<Well*>& wells, double minelesize,
                                               double maxelesize, double scalefactor,
                                               int maxelements, bool dispersion) {
  requirePositive(H, "H");
  requirePositive(amin, "amin");
  requirePositive(bmin, "bmin");
  requirePositive(minelesize, "minelesize");
  requirePositive(scalefactor, "scalefactor");
  requirePositive(maxelesize, "maxelesize");
  requireExtentsOfHalfACell(amin, bmin, minelesize);

  std::vector<double> x;
  std::vector<double> y;
  for (const Well* well : wells) {
    x.push_back(well->x());
    y.push_back(well->y());
  }
  x = sortedWithoutDuplicates(std::move(x));
  y = sortedWithoutDuplicates(std::move(y));

  const double growX = amin / (amin + bmin) + 1.1;
  const double growY = bmin / (amin + bmin) + 1.1;
  AxisRules xRules{minelesize, maxelesize, scalefactor};
  AxisRules yRules{minelesize, maxelesize, scalefactor};
  double previous = 1.0;
  while (true) {
    const FVGridLine xLine = makeXLine(x, amin, bmin, dispersion, xRules);
    const FVGridLine yLine = makeYLine(y, bmin, yRules);
    const double count = static_cast<double>(xLine.count()) * static_cast<double>(yLine.count());
    if (maxelements > count || count == previous) {
      requireCountThatFits(count);
      return std::make_unique<FVMesh>(xLine, yLine, H);
    }
    previous = count;
    xRules.scale *= growX;
    yRules.scale *= growY;
  }
}
