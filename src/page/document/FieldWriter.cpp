#include "page/document/FieldWriter.h"

#include "page/document/ElementText.h"
#include "page/document/NumberText.h"
#include "xml/XmlBytes.h"

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

namespace TVR::Page {

FieldWriter FieldWriter::child(const char* tag) {
  QDomElement child = element_.firstChildElement(tag);
  if (child.isNull()) {
    child = element_.ownerDocument().createElement(tag);
    element_.appendChild(child);
  }
  return FieldWriter(child);
}

std::vector<FieldWriter> FieldWriter::children(const char* tag, size_t count) {
  std::vector<FieldWriter> writers;
  QDomElement child = element_.firstChildElement(tag);
  while (!child.isNull()) {
    const QDomElement next = child.nextSiblingElement(tag);
    if (writers.size() < count)
      writers.push_back(FieldWriter(child));
    else
      element_.removeChild(child);
    child = next;
  }
  while (writers.size() < count) {
    child = element_.ownerDocument().createElement(tag);
    element_.appendChild(child);
    writers.push_back(FieldWriter(child));
  }
  return writers;
}

void FieldWriter::flag(const char* attribute, bool value) {
  element_.setAttribute(attribute, value ? "1" : "0");
}

void FieldWriter::integer(const char* attribute, int value, int, int) {
  element_.setAttribute(attribute, value);
}

void FieldWriter::number(const char* attribute, double value) {
  element_.setAttribute(attribute, numberText(value));
}

void FieldWriter::number(const char* attribute, const std::optional<double>& value) {
  if (value)
    number(attribute, *value);
  else
    element_.removeAttribute(attribute);
}

void FieldWriter::length(const char* attribute, double value) {
  element_.setAttribute(attribute, shiftedText(value, 1));
}

void FieldWriter::lengths(const QPointF& value) {
  length("X", value.x());
  length("Y", value.y());
}

void FieldWriter::lengths(const QSizeF& value) {
  length("Width", value.width());
  length("Height", value.height());
}

void FieldWriter::lengths(const QMarginsF& value) {
  length("Left", value.left());
  length("Top", value.top());
  length("Right", value.right());
  length("Bottom", value.bottom());
}

void FieldWriter::numbers(const QPointF& value) {
  number("X", value.x());
  number("Y", value.y());
}

void FieldWriter::numbers(const QSizeF& value) {
  number("Width", value.width());
  number("Height", value.height());
}

void FieldWriter::string(const char* attribute, const QString& value) {
  element_.setAttribute(attribute, xmlText(value));
}

void FieldWriter::colour(const char* attribute, const QColor& value) {
  element_.setAttribute(attribute, value.isValid() ? value.name(QColor::HexArgb) : "none");
}

void FieldWriter::constant(const char* attribute, const char* value) {
  if (!element_.hasAttribute(attribute))
    element_.setAttribute(attribute, value);
}

void FieldWriter::setText(const QString& text) {
  removeText(element_);
  if (!text.isEmpty())
    element_.insertBefore(element_.ownerDocument().createTextNode(text), element_.firstChild());
}

/// Readers of XML drop text of blanks only and turn line ends of other systems into their own: such
/// a text stands in an attribute.
void FieldWriter::text(const QString& value) {
  const QString text = xmlText(value);
  const bool isSafe = text.isEmpty() || (!text.trimmed().isEmpty() && !text.contains('\r'));
  setText(isSafe ? text : QString());
  if (isSafe)
    element_.removeAttribute("Value");
  else
    element_.setAttribute("Value", text);
}

void FieldWriter::pen(const QPen& value) {
  integer("Style", value.style(), Qt::NoPen, Qt::DashDotDotLine);
  integer("Cap", value.capStyle(), 0, Qt::MPenCapStyle);
  integer("Join", value.joinStyle(), 0, Qt::MPenJoinStyle);
  length("Width", value.widthF());
  colour("Color", value.color());
}

void FieldWriter::brush(const QBrush& value) {
  integer("Style", value.style(), Qt::NoBrush, Qt::DiagCrossPattern);
  colour("Color", value.color());
}

void FieldWriter::font(const QFont& value) {
  string("Family", value.family());
  number("PointSize", value.pointSizeF());
  integer("Weight", value.weight(), 0, 99);
  flag("Italic", value.italic());
  flag("Underline", value.underline());
  flag("StrikeOut", value.strikeOut());
}

void FieldWriter::list(const std::vector<double>& value) {
  QByteArray text;
  for (const double number : value)
    appendNumber(text, number);
  setText(QString::fromLatin1(text));
}

void FieldWriter::list(const std::vector<QPointF>& value) {
  QByteArray text;
  for (const QPointF& point : value) {
    appendNumber(text, point.x());
    appendNumber(text, point.y());
  }
  setText(QString::fromLatin1(text));
}

void FieldWriter::list(const std::vector<std::array<int, 4>>& value) {
  QByteArray text;
  for (const std::array<int, 4>& cell : value)
    for (const int node : cell)
      appendNumber(text, node);
  setText(QString::fromLatin1(text));
}

void FieldWriter::list(const std::vector<int>& value) {
  QByteArray text;
  for (const int number : value)
    appendNumber(text, number);
  setText(QString::fromLatin1(text));
}

void FieldWriter::list(const QVector<int>& value) {
  list(std::vector<int>(value.begin(), value.end()));
}

void FieldWriter::list(const QVector<QPointF>& value) {
  list(std::vector<QPointF>(value.begin(), value.end()));
}

void FieldWriter::variants(const QVariantList& value) {
  std::vector<FieldWriter> entries = children("Entry", static_cast<size_t>(value.size()));
  for (int index = 0; index < value.size(); ++index)
    entries[static_cast<size_t>(index)].variant(value[index]);
}

namespace {

/// The type that a value has in the document.
int storedType(const QVariant& value) {
  const int type = value.userType();
  if (type == QMetaType::QSize)
    return QMetaType::QSizeF;
  return type >= QMetaType::User && value.canConvert<int>() ? QMetaType::Int : type;
}

} // namespace

bool FieldWriter::holds(const QVariant& value) {
  switch (storedType(value)) {
  case QMetaType::Bool:
  case QMetaType::Int:
  case QMetaType::Double:
  case QMetaType::QString:
  case QMetaType::QPointF:
  case QMetaType::QSizeF:
  case QMetaType::QColor:
  case QMetaType::QPen:
  case QMetaType::QBrush:
  case QMetaType::QFont:
  case QMetaType::QPolygonF:
  case QMetaType::QVariantList:
  case QMetaType::QVariantMap:
    return true;
  default:
    return false;
  }
}

void FieldWriter::variant(const QVariant& value) {
  if (!holds(value)) {
    element_.removeAttribute("Type");
    return;
  }
  const int type = storedType(value);
  element_.setAttribute("Type", QMetaType::typeName(type));
  switch (type) {
  case QMetaType::Bool:
  case QMetaType::Int:
    return element_.setAttribute("Value", value.toInt());
  case QMetaType::Double:
    return number("Value", value.toDouble());
  case QMetaType::QString:
    return string("Value", value.toString());
  case QMetaType::QPointF:
    return numbers(value.toPointF());
  case QMetaType::QSizeF:
    return numbers(value.toSizeF());
  case QMetaType::QColor:
    return colour("Color", value.value<QColor>());
  case QMetaType::QPen:
    return pen(value.value<QPen>());
  case QMetaType::QBrush:
    return brush(value.value<QBrush>());
  case QMetaType::QFont:
    return font(value.value<QFont>());
  case QMetaType::QPolygonF:
    return list(value.value<QPolygonF>());
  case QMetaType::QVariantList:
    return variants(value.toList());
  default:
    return map(value.toMap());
  }
}

void FieldWriter::map(const QVariantMap& value) {
  auto entry = value.begin();
  for (FieldWriter& fields : entries("Entry", value)) {
    fields.string("Key", entry.key());
    fields.variant(*entry++);
  }
}

void FieldWriter::image(const QImage& value) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  value.save(&buffer, "PNG");
  setText(QString::fromLatin1(bytes.toBase64()));
}

} // namespace TVR::Page
