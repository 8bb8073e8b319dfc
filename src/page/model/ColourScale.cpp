#include "page/model/ColourScale.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace TVR::Page {

namespace {

using Lab = std::array<double, 3>; ///< lightness from 0 to 100, green to red, blue to yellow

// Both ends are equally far from the neutral one, in lightness and in colour, and all colours on
// the straight lines between them exist in sRGB.
constexpr Lab neutral{96, 0, 0};
constexpr Lab cold{40, 14.75, -55.06};
constexpr Lab warm{40, 49.36, 28.5};
constexpr int steps = 64; ///< entries of one side of a built-in scale

/// From CIELAB over XYZ for the white D65 to sRGB (IEC 61966-2-1).
QColor fromLab(const Lab& lab) {
  const auto ratio = [](double f) {
    return f > 6.0 / 29 ? f * f * f : 3 * (6.0 / 29) * (6.0 / 29) * (f - 4.0 / 29);
  };
  const double f = (lab[0] + 16) / 116;
  const double x = 0.95047 * ratio(f + lab[1] / 500);
  const double y = ratio(f);
  const double z = 1.08883 * ratio(f - lab[2] / 200);
  const auto encoded = [](double linear) {
    const double value =
        linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
    return std::clamp(value, 0.0, 1.0);
  };
  return QColor::fromRgbF(encoded(3.2404542 * x - 1.5371385 * y - 0.4985314 * z),
                          encoded(-0.9692660 * x + 1.8760108 * y + 0.0415560 * z),
                          encoded(0.0556434 * x - 0.2040259 * y + 1.0572252 * z));
}

} // namespace

ColourScale::ColourScale(double one, double other) {
  if (!std::isfinite(one) || !std::isfinite(other))
    return;
  const double minimum = std::min(one, other);
  const double maximum = std::max(one, other);
  if (minimum == maximum) {
    entries_.push_back({minimum, fromLab(neutral)});
  } else if (minimum >= 0) {
    addHalf(minimum, maximum, warm);
  } else if (maximum <= 0) {
    addHalf(maximum, minimum, cold);
    std::reverse(entries_.begin(), entries_.end());
  } else {
    const double limit = std::max(-minimum, maximum);
    addHalf(0, -limit, cold);
    std::reverse(entries_.begin(), entries_.end());
    entries_.pop_back();
    addHalf(0, limit, warm);
  }
}

/// Entries from the neutral colour at `from` to the colour `end` at `to`.
void ColourScale::addHalf(double from, double to, const Lab& end) {
  for (int i = 0; i <= steps; ++i) {
    const double share = static_cast<double>(i) / steps;
    Lab lab;
    for (int k = 0; k < 3; ++k)
      lab[k] = neutral[k] + share * (end[k] - neutral[k]);
    entries_.push_back({(1 - share) * from + share * to, fromLab(lab)});
  }
}

ColourScale::ColourScale(const std::vector<Entry>& entries) {
  std::copy_if(entries.begin(), entries.end(), std::back_inserter(entries_),
               [](const Entry& entry) { return std::isfinite(entry.value); });
  std::stable_sort(entries_.begin(), entries_.end(),
                   [](const Entry& a, const Entry& b) { return a.value < b.value; });
  const auto end = std::unique(entries_.begin(), entries_.end(),
                               [](const Entry& a, const Entry& b) { return a.value == b.value; });
  entries_.erase(end, entries_.end());
}

QColor ColourScale::colour(double value) const {
  if (std::isnan(value) || entries_.empty())
    return Qt::transparent;
  const auto above =
      std::upper_bound(entries_.begin(), entries_.end(), value,
                       [](double wanted, const Entry& entry) { return wanted < entry.value; });
  if (above == entries_.begin())
    return entries_.front().colour;
  if (above == entries_.end())
    return entries_.back().colour;
  const Entry& below = *(above - 1);
  // Halves, since the difference of two values may be too large for a number.
  const double share = (value / 2 - below.value / 2) / (above->value / 2 - below.value / 2);
  const auto between = [share](double a, double b) { return a + share * (b - a); };
  return QColor::fromRgbF(between(below.colour.redF(), above->colour.redF()),
                          between(below.colour.greenF(), above->colour.greenF()),
                          between(below.colour.blueF(), above->colour.blueF()),
                          between(below.colour.alphaF(), above->colour.alphaF()));
}

} // namespace TVR::Page
