#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <vector>

namespace TVR::Page {

/// Where a label stands on a line.
struct LabelPlace {
  QPointF centre;
  double angle = 0; ///< [degrees] clockwise, from -90 to 90 so that the text stands upright
  QSizeF size;

  /// The corners of the label's box.
  QPolygonF outline() const;
};

/// Places for labels of one size along a line on the page [mm], `distance` [mm] apart in the mean,
/// at least one where the line is long enough for it: where the line hardly bends below the label,
/// inside `area`, and clear of the labels in `taken`, to which the new ones are added. A line
/// shorter than one and a half labels has none.
std::vector<LabelPlace> placeLabels(const QPolygonF& line, const QSizeF& label, double distance,
                                    const QRectF& area, std::vector<QPolygonF>& taken);

} // namespace TVR::Page
