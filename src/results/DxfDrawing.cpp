#include "results/DxfDrawing.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR {

namespace {

constexpr int longestName = 31;
constexpr int decimals = 4;
constexpr int metres = 6;          // of $INSUNITS
constexpr int circleWithPlus = 34; // of $PDMODE

/// Texts and signs of points, by the longer side of the drawing.
constexpr double textPart = 0.01;
constexpr double leastText = 0.1; // [m]

bool isFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The smallest box around points; the unit square around the origin without any.
class Extent {
public:
  void add(const QPointF& point) {
    low_ = {std::min(low_.x(), point.x()), std::min(low_.y(), point.y())};
    high_ = {std::max(high_.x(), point.x()), std::max(high_.y(), point.y())};
  }
  QRectF box() const { return low_.x() <= high_.x() ? QRectF(low_, high_) : QRectF(0, 0, 1, 1); }

private:
  static constexpr double far = std::numeric_limits<double>::infinity();
  QPointF low_{far, far};
  QPointF high_{-far, -far};
};

/// Writes groups: a code on one line, its value on the next.
class Groups {
public:
  void add(int code, const QByteArray& text) {
    bytes += QByteArray::number(code) + '\n' + text + '\n';
  }
  void add(int code, int number) { add(code, QByteArray::number(number)); }
  void add(int code, double number) { add(code, QByteArray::number(number, 'f', decimals)); }
  /// A point: x under `code`, y under the code ten above.
  void add(int code, const QPointF& point) {
    add(code, point.x());
    add(code + 10, point.y());
  }
  template <typename Value>
  void addVariable(const char* name, int code, Value value) {
    add(9, name);
    add(code, value);
  }
  void begin(const char* section) {
    add(0, "SECTION");
    add(2, section);
  }
  void end() { add(0, "ENDSEC"); }

  QByteArray bytes;
};

void writeHeader(Groups& groups, const QRectF& extent, double textHeight) {
  groups.begin("HEADER");
  groups.addVariable("$ACADVER", 1, QByteArray("AC1009"));
  groups.addVariable("$DWGCODEPAGE", 3, QByteArray("ANSI_1252"));
  groups.addVariable("$INSUNITS", 70, metres);
  groups.addVariable("$MEASUREMENT", 70, 1);
  groups.addVariable("$LUNITS", 70, 2);
  groups.addVariable("$EXTMIN", 10, extent.topLeft());
  groups.addVariable("$EXTMAX", 10, extent.bottomRight());
  groups.addVariable("$LIMMIN", 10, extent.topLeft());
  groups.addVariable("$LIMMAX", 10, extent.bottomRight());
  groups.addVariable("$PDMODE", 70, circleWithPlus);
  groups.addVariable("$PDSIZE", 40, textHeight);
  groups.addVariable("$TEXTSIZE", 40, textHeight);
  groups.end();
}

void beginTable(Groups& groups, const char* name, int rows) {
  groups.add(0, "TABLE");
  groups.add(2, name);
  groups.add(70, rows);
}

/// The view that a program opens with: all of the drawing, which may lie far from the origin.
void writeView(Groups& groups, const QRectF& extent) {
  beginTable(groups, "VPORT", 1);
  groups.add(0, "VPORT");
  groups.add(2, "*ACTIVE");
  groups.add(70, 0);
  groups.add(10, QPointF(0, 0));
  groups.add(11, QPointF(1, 1));
  groups.add(12, extent.center());
  groups.add(40, 1.1 * std::max(extent.height(), extent.width()));
  groups.add(41, 1.0);
  groups.add(0, "ENDTAB");
}

void writeLineTypes(Groups& groups) {
  beginTable(groups, "LTYPE", 1);
  groups.add(0, "LTYPE");
  groups.add(2, "CONTINUOUS");
  groups.add(70, 0);
  groups.add(3, "Solid line");
  groups.add(72, int('A'));
  groups.add(73, 0);
  groups.add(40, 0.0);
  groups.add(0, "ENDTAB");
}

void writeLayers(Groups& groups, const std::map<QString, QColor>& layers) {
  const auto write = [&groups](const QByteArray& name, int colour) {
    groups.add(0, "LAYER");
    groups.add(2, name);
    groups.add(70, 0);
    groups.add(62, colour);
    groups.add(6, "CONTINUOUS");
  };
  beginTable(groups, "LAYER", int(layers.size()) + 1);
  write("0", colourIndex(Qt::black));
  for (const auto& [name, colour] : layers)
    write(name.toLatin1(), colourIndex(colour));
  groups.add(0, "ENDTAB");
}

void writeTextStyle(Groups& groups, double textHeight) {
  beginTable(groups, "STYLE", 1);
  groups.add(0, "STYLE");
  groups.add(2, "STANDARD");
  groups.add(70, 0);
  groups.add(40, 0.0);
  groups.add(41, 1.0);
  groups.add(50, 0.0);
  groups.add(71, 0);
  groups.add(42, textHeight);
  groups.add(3, "txt");
  groups.add(4, "");
  groups.add(0, "ENDTAB");
}

void beginEntity(Groups& groups, const char* type, const QString& layer) {
  groups.add(0, type);
  groups.add(8, layer.toLatin1());
}

void writePlace(Groups& groups, const QPointF& point) {
  groups.add(10, point);
  groups.add(30, 0.0);
}

void writeLine(Groups& groups, const QString& layer, const QPolygonF& points, bool isClosed) {
  beginEntity(groups, "POLYLINE", layer);
  groups.add(66, 1); // vertices follow
  writePlace(groups, {0, 0});
  groups.add(70, isClosed ? 1 : 0);
  for (const QPointF& point : points) {
    beginEntity(groups, "VERTEX", layer);
    writePlace(groups, point);
  }
  beginEntity(groups, "SEQEND", layer);
}

} // namespace

void DxfDrawing::addLayer(const QString& name, const QColor& colour) {
  layers_.emplace(name, colour);
}

void DxfDrawing::addLine(const QString& layer, const QPolygonF& points) {
  Line line{layer, {}, false};
  std::copy_if(points.begin(), points.end(), std::back_inserter(line.points), isFinite);
  if (line.points.size() > 2 && line.points.first() == line.points.last()) {
    line.points.removeLast();
    line.isClosed = true;
  }
  if (line.points.size() > 1)
    lines_.push_back(line);
}

void DxfDrawing::addPoint(const QString& layer, const QPointF& point, const QString& text) {
  if (isFinite(point))
    points_.push_back({layer, point, text});
}

QByteArray DxfDrawing::toDxf() const {
  Extent extent;
  for (const Line& line : lines_)
    std::for_each(line.points.begin(), line.points.end(), [&](auto& point) { extent.add(point); });
  for (const Point& point : points_)
    extent.add(point.place);
  const QRectF box = extent.box();
  const double textHeight = std::max(leastText, textPart * std::max(box.width(), box.height()));

  Groups groups;
  writeHeader(groups, box, textHeight);
  groups.begin("TABLES");
  writeView(groups, box);
  writeLineTypes(groups);
  writeLayers(groups, layers_);
  writeTextStyle(groups, textHeight);
  groups.end();
  groups.begin("BLOCKS");
  groups.end();
  groups.begin("ENTITIES");
  for (const Line& line : lines_)
    writeLine(groups, line.layer, line.points, line.isClosed);
  for (const Point& point : points_) {
    beginEntity(groups, "POINT", point.layer);
    writePlace(groups, point.place);
    beginEntity(groups, "TEXT", point.layer);
    writePlace(groups, point.place + QPointF(textHeight, textHeight) / 2);
    groups.add(40, textHeight);
    groups.add(1, drawingText(point.text));
  }
  groups.end();
  groups.add(0, "EOF");
  return groups.bytes;
}

QString layerName(const QString& kind, double level, const QString& unit) {
  const QString name = QStringLiteral("%1_%2_%3").arg(kind, QString::number(level), unit).toUpper();
  QString allowed;
  for (const QChar character : name) {
    const bool isAllowed = (character >= 'A' && character <= 'Z') ||
                           (character >= '0' && character <= '9') || character == '-';
    allowed += isAllowed ? character : QChar('_');
  }
  return allowed.left(longestName);
}

int colourIndex(const QColor& colour) {
  // The first ones are pure, 7 is black on white paper; from 10 on stand 24 hues of ten shades
  // each.
  constexpr QRgb pure[] = {0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff};
  constexpr double brightness[] = {1, 0.65, 0.5, 0.3, 0.15};
  const auto distance = [&colour](const QColor& other) {
    const int red = colour.red() - other.red();
    const int green = colour.green() - other.green();
    const int blue = colour.blue() - other.blue();
    return red * red + green * green + blue * blue;
  };
  int nearest = 7;
  int least = std::min(distance(Qt::black), distance(Qt::white));
  const auto consider = [&](int index, const QColor& candidate) {
    if (distance(candidate) < least) {
      least = distance(candidate);
      nearest = index;
    }
  };
  for (int index = 1; index < 7; ++index)
    consider(index, QColor::fromRgb(pure[index - 1]));
  for (int index = 10; index < 250; ++index) {
    const double hue = (index / 10 - 1) / 24.0;
    const double saturation = index % 2 ? 0.5 : 1.0;
    consider(index, QColor::fromHsvF(hue, saturation, brightness[index % 10 / 2]));
  }
  return nearest;
}

QByteArray drawingText(const QString& text) {
  constexpr ushort lastOfLatin1 = 0xff;
  QByteArray bytes;
  for (const QChar character : text) {
    const ushort code = character.unicode();
    if (character.category() == QChar::Other_Control)
      bytes += ' ';
    else if (code <= lastOfLatin1)
      bytes += char(code);
    else
      bytes += "\\U+" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
  }
  return bytes;
}

} // namespace TVR
