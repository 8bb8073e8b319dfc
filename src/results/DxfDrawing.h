#pragma once

#include <QByteArray>
#include <QColor>
#include <QPolygonF>
#include <QString>

#include <map>
#include <vector>

namespace TVR {

/// A drawing in metres that becomes a DXF of release 12, which every CAD program reads: header and
/// tables, a layer with a colour for everything that is drawn, and entities of release 12 only.
class DxfDrawing {
public:
  /// A layer by the name that layerName() gives it. The first colour of a layer holds.
  void addLayer(const QString& name, const QColor& colour);

  /// A line through points [m]; closed if it ends where it begins. Points that are not finite are
  /// left out, and a line of which fewer than two remain.
  void addLine(const QString& layer, const QPolygonF& points);

  /// A point [m] with a text beside it; nothing if it is not finite.
  void addPoint(const QString& layer, const QPointF& point, const QString& text);

  /// The file. Numbers have a decimal point and tenths of a millimetre.
  QByteArray toDxf() const;

private:
  struct Line {
    QString layer;
    QPolygonF points;
    bool isClosed;
  };
  struct Point {
    QString layer;
    QPointF place;
    QString text;
  };

  std::map<QString, QColor> layers_;
  std::vector<Line> lines_;
  std::vector<Point> points_;
};

/// The name of a layer for one level of a kind of lines: "ISOTHERM_-0_5_K" for ("ISOTHERM", -0.5,
/// "K"). Release 12 takes capitals, digits, "-", "_" and "$", and 31 of them.
QString layerName(const QString& kind, double level, const QString& unit);

/// The number, from 1 to 249, of the colour of the CAD programs' palette that is nearest.
int colourIndex(const QColor& colour);

/// A text as it stands in a DXF: in Latin-1, which readers agree on, letters beyond it by their
/// number ("\U+0141"), control characters as blanks.
QByteArray drawingText(const QString& text);

} // namespace TVR
