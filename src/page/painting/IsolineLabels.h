#pragma once

#include <QLineF>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <optional>
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

/// Where a label stands that belongs to a point beside it.
struct PlaceBeside {
  LabelPlace label;
  QLineF leader; ///< from the point to the label; null where they touch
};

/// Places for labels of one size along a line on the page [mm], `distance` [mm] apart in the mean,
/// at least one where the line is long enough for it: where the line hardly bends below the label,
/// inside `area`, off the lines in `others`, and clear of the labels in `taken`, to which the new
/// ones are added. A line shorter than six labels has none: they would swallow it.
std::vector<LabelPlace> placeLabels(const QPolygonF& line, const QSizeF& label, double distance,
                                    const QRectF& area, std::vector<QPolygonF>& taken,
                                    const std::vector<QPolygonF>& others = {});

/// A place beside what lies `clearance` [mm] around `anchor`: touching it, or farther off with a
/// leader if there is none. `nearest` [mm] is how near it may be. The place is inside `area` and
/// clear of `taken`, to which it is added; none if there is no such place.
std::optional<PlaceBeside> placeBeside(const QPointF& anchor, double clearance, double nearest,
                                       const QSizeF& label, const QRectF& area,
                                       std::vector<QPolygonF>& taken);

/// A place for the label of a line that is too short to bear it: with a leader from the line, as
/// placeBeside(), and off `lines` where there is such a place. The leader crosses nothing in
/// `taken` but what lies at its start, unless there is no other place.
std::optional<PlaceBeside> placeOffLine(const QPolygonF& line, const QSizeF& label,
                                        const QRectF& area, const std::vector<QPolygonF>& lines,
                                        std::vector<QPolygonF>& taken);

/// The length of a polyline.
double lengthOf(const QPolygonF& line);

} // namespace TVR::Page
