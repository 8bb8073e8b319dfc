#pragma once

#include <QColor>

#include <array>
#include <vector>

namespace TVR::Page {

/// The colours of a range of values. The built-in scales are even in the colour space CIELAB, so
/// that equal steps look equal wherever they are taken. A range of both signs runs from blue over
/// nearly white at 0 to red and reaches equally far to both sides, so that values of one size are
/// equally light; a range of one sign runs from nearly white, at its end next to 0, to the colour
/// of the sign.
class ColourScale {
public:
  /// A fixed point of a scale.
  struct Entry {
    double value;
    QColor colour;
  };

  /// The built-in scale for the range between two values, in any order. A range of one value only
  /// is nearly white; one that is not finite has no colours.
  ColourScale(double one, double other);
  /// A scale that runs straight, in sRGB, from entry to entry and stays as it is beyond the
  /// outermost. The entries come in any order; of several with one value the first counts, and
  /// those whose value is not finite do not.
  explicit ColourScale(const std::vector<Entry>& entries);

  /// Transparent for what is not a number, and for all values if there are no colours.
  QColor colour(double value) const;

private:
  void addHalf(double from, double to, const std::array<double, 3>& end);

  std::vector<Entry> entries_; ///< rising, and so near each other that straight between is even
};

} // namespace TVR::Page
