#include "page/document/FieldReader.h"

#include "contour/FinitePoints.h"
#include "disk/PictureReading.h"
#include "page/document/ElementText.h"
#include "page/document/NumberText.h"

#include <QBrush>
#include <QBuffer>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QMarginsF>
#include <QPen>
#include <QPolygonF>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace TVR::Page {

namespace {

/// Lists and maps inside each other, more than any property has.
constexpr int deepestVariant = 8;

/// A value that `fill` writes.
template <typename Value, typename Fill>
QVariant read(Fill fill) {
  Value value;
  fill(value);
  return value;
}

} // namespace

std::vector<FieldReader> FieldReader::children(const char* tag) const {
  std::vector<FieldReader> readers;
  for (QDomElement child = element_.firstChildElement(tag); !child.isNull();
       child = child.nextSiblingElement(tag))
    readers.push_back({child, budget_});
  return readers;
}

void FieldReader::flag(const char* attribute, bool& value) const {
  if (!element_.hasAttribute(attribute))
    return;
  const QString text = element_.attribute(attribute);
  value = text == "1" || text.compare("true", Qt::CaseInsensitive) == 0;
}

void FieldReader::integer(const char* attribute, int& value, int lowest, int highest) const {
  bool isNumber = false;
  const int number = element_.attribute(attribute).toInt(&isNumber);
  if (isNumber && number >= lowest && number <= highest)
    value = number;
}

void FieldReader::number(const char* attribute, double& value) const {
  value = shiftedNumber(element_.attribute(attribute), 0, value);
}

void FieldReader::number(const char* attribute, std::optional<double>& value) const {
  const double missing = std::nan("");
  const double number = shiftedNumber(element_.attribute(attribute), 0, missing);
  if (std::isfinite(number))
    value = number;
}

void FieldReader::length(const char* attribute, double& value) const {
  value = shiftedNumber(element_.attribute(attribute), 1, value);
}

void FieldReader::lengths(QPointF& value) const {
  length("X", value.rx());
  length("Y", value.ry());
}

void FieldReader::lengths(QSizeF& value) const {
  length("Width", value.rwidth());
  length("Height", value.rheight());
  value = value.expandedTo({0, 0});
}

void FieldReader::lengths(QMarginsF& value) const {
  double left = value.left();
  double top = value.top();
  double right = value.right();
  double bottom = value.bottom();
  length("Left", left);
  length("Top", top);
  length("Right", right);
  length("Bottom", bottom);
  value = {left, top, right, bottom};
}

void FieldReader::numbers(QPointF& value) const {
  number("X", value.rx());
  number("Y", value.ry());
}

void FieldReader::numbers(QSizeF& value) const {
  number("Width", value.rwidth());
  number("Height", value.rheight());
  value = value.expandedTo({0, 0});
}

void FieldReader::string(const char* attribute, QString& value) const {
  value = element_.attribute(attribute, value);
}

void FieldReader::colour(const char* attribute, QColor& value) const {
  const QString name = element_.attribute(attribute);
  if (name == "none")
    value = QColor();
  else if (QColor::isValidColor(name))
    value.setNamedColor(name);
}

QString FieldReader::takeText() const {
  const QString text = directText(element_);
  QDomElement emptied = element_;
  removeText(emptied);
  return text;
}

void FieldReader::text(QString& value) const {
  if (element_.hasAttribute("Value"))
    value = element_.attribute("Value");
  else if (!element_.isNull())
    value = directText(element_);
}

void FieldReader::pen(QPen& value) const {
  if (element_.isNull())
    return;
  int style = value.style();
  int cap = value.capStyle();
  int join = value.joinStyle();
  double width = value.widthF();
  QColor colour = value.color();
  integer("Style", style, Qt::NoPen, Qt::DashDotDotLine);
  integer("Cap", cap, 0, Qt::MPenCapStyle);
  integer("Join", join, 0, Qt::MPenJoinStyle);
  length("Width", width);
  this->colour("Color", colour);
  value.setStyle(static_cast<Qt::PenStyle>(style));
  value.setCapStyle(static_cast<Qt::PenCapStyle>(cap));
  value.setJoinStyle(static_cast<Qt::PenJoinStyle>(join));
  value.setWidthF(std::clamp(width, 0.0, 1000.0));
  value.setColor(colour);
}

void FieldReader::brush(QBrush& value) const {
  if (element_.isNull())
    return;
  int style = value.style();
  QColor colour = value.color();
  integer("Style", style, Qt::NoBrush, Qt::DiagCrossPattern);
  this->colour("Color", colour);
  value = QBrush(colour, static_cast<Qt::BrushStyle>(style));
}

void FieldReader::font(QFont& value) const {
  if (element_.isNull())
    return;
  QString family = value.family();
  double points = value.pointSizeF();
  int weight = value.weight();
  bool italic = value.italic();
  bool underline = value.underline();
  bool strikeOut = value.strikeOut();
  string("Family", family);
  number("PointSize", points);
  integer("Weight", weight, 0, 99);
  flag("Italic", italic);
  flag("Underline", underline);
  flag("StrikeOut", strikeOut);
  value = QFont(family);
  value.setPointSizeF(std::clamp(points, 0.5, 500.0));
  value.setWeight(weight);
  value.setItalic(italic);
  value.setUnderline(underline);
  value.setStrikeOut(strikeOut);
}

template <typename Number>
std::vector<Number> FieldReader::takeNumbers() const {
  std::vector<Number> numbers = numbersOf<Number>(takeText(), budget_.numbers);
  budget_.numbers -= static_cast<qint64>(numbers.size());
  return numbers;
}

void FieldReader::list(std::vector<double>& value) const {
  value = takeNumbers<double>();
}

void FieldReader::list(std::vector<QPointF>& value) const {
  const std::vector<double> numbers = takeNumbers<double>();
  value.clear();
  value.reserve(numbers.size() / 2);
  for (size_t index = 0; index + 1 < numbers.size(); index += 2) {
    const QPointF point(numbers[index], numbers[index + 1]);
    value.push_back(Contour::isFinite(point) ? point : QPointF());
  }
}

void FieldReader::list(std::vector<std::array<int, 4>>& value) const {
  const std::vector<int> numbers = takeNumbers<int>();
  value.resize(numbers.size() / 4);
  for (size_t index = 0; index < value.size(); ++index)
    std::copy_n(numbers.begin() + static_cast<std::ptrdiff_t>(4 * index), 4, value[index].begin());
}

void FieldReader::list(std::vector<int>& value) const {
  value = takeNumbers<int>();
}

void FieldReader::list(QVector<int>& value) const {
  const std::vector<int> numbers = takeNumbers<int>();
  value = QVector<int>(numbers.begin(), numbers.end());
}

void FieldReader::list(QVector<QPointF>& value) const {
  std::vector<QPointF> points;
  list(points);
  value = QVector<QPointF>(points.begin(), points.end());
}

void FieldReader::variants(QVariantList& value, int depth) const {
  value.clear();
  for (const FieldReader& entry : children("Entry")) {
    QVariant read;
    entry.variant(read, depth);
    value.append(read);
  }
}

void FieldReader::variant(QVariant& value, int depth) const {
  const int type = QMetaType::type(element_.attribute("Type").toLatin1());
  const QString text = element_.attribute("Value");
  switch (type) {
  case QMetaType::Bool:
    value = text == "1";
    break;
  case QMetaType::Int:
    value = text.toInt();
    break;
  case QMetaType::Double:
    value = text.toDouble();
    break;
  case QMetaType::QString:
    value = text;
    break;
  case QMetaType::QPointF:
    value = read<QPointF>([this](QPointF& point) { numbers(point); });
    break;
  case QMetaType::QSizeF:
    value = read<QSizeF>([this](QSizeF& size) { numbers(size); });
    break;
  case QMetaType::QColor:
    value = read<QColor>([this](QColor& colour) { this->colour("Color", colour); });
    break;
  case QMetaType::QPen:
    value = read<QPen>([this](QPen& pen) { this->pen(pen); });
    break;
  case QMetaType::QBrush:
    value = read<QBrush>([this](QBrush& brush) { this->brush(brush); });
    break;
  case QMetaType::QFont:
    value = read<QFont>([this](QFont& font) { this->font(font); });
    break;
  case QMetaType::QPolygonF:
    value = read<QPolygonF>([this](QPolygonF& points) { list(points); });
    break;
  case QMetaType::QVariantList: {
    QVariantList entries;
    if (depth < deepestVariant)
      variants(entries, depth + 1);
    value = entries;
    break;
  }
  case QMetaType::QVariantMap: {
    QVariantMap entries;
    if (depth < deepestVariant)
      for (const FieldReader& entry : children("Entry"))
        entry.variant(entries[entry.element_.attribute("Key")], depth + 1);
    value = entries;
    break;
  }
  default:
    break;
  }
}

void FieldReader::image(QImage& value) const {
  QByteArray bytes = QByteArray::fromBase64(takeText().toLatin1());
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  value = readImage(buffer, budget_.pixels);
  budget_.pixels -= static_cast<qint64>(value.width()) * value.height();
}

} // namespace TVR::Page
