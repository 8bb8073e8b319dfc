#pragma once

#include <QDomElement>
#include <QVariant>
#include <QVector>

#include <array>
#include <optional>
#include <vector>

class QBrush;
class QColor;
class QFont;
class QImage;
class QMarginsF;
class QPen;
class QPointF;
class QSizeF;

namespace TVR::Page {

/// Writes the fields of one element of the page document, into the element that was read if there
/// is one, so that what is not known here stays in place. Its operations are those of FieldReader.
class FieldWriter {
public:
  explicit FieldWriter(const QDomElement& element) : element_(element) {}

  FieldWriter child(const char* tag);
  /// Exactly `count` children of this tag; the first ones are those that are there.
  std::vector<FieldWriter> children(const char* tag, size_t count);
  template <typename Entries>
  std::vector<FieldWriter> entries(const char* tag, const Entries& entries) {
    return children(tag, static_cast<size_t>(entries.size()));
  }

  void flag(const char* attribute, bool value);
  void integer(const char* attribute, int value, int lowest, int highest);
  void number(const char* attribute, double value);
  void number(const char* attribute, const std::optional<double>& value);
  void length(const char* attribute, double value);
  void lengths(const QPointF& value);
  void lengths(const QSizeF& value);
  void lengths(const QMarginsF& value);
  void numbers(const QPointF& value);
  void numbers(const QSizeF& value);
  void string(const char* attribute, const QString& value);
  void colour(const char* attribute, const QColor& value);
  void constant(const char* attribute, const char* value);

  void text(const QString& value);
  void pen(const QPen& value);
  void brush(const QBrush& value);
  void font(const QFont& value);
  void list(const std::vector<double>& value);
  void list(const std::vector<QPointF>& value);
  void list(const std::vector<std::array<int, 4>>& value);
  void list(const std::vector<int>& value);
  void list(const QVector<int>& value);
  void list(const QVector<QPointF>& value);
  /// Whether the document has a form for values of this type.
  static bool holds(const QVariant& value);
  /// A value that it has no form for leaves the element without a type.
  void variant(const QVariant& value);
  void variants(const QVariantList& value);
  void image(const QImage& value);

private:
  void setText(const QString& text);
  void map(const QVariantMap& value);

  QDomElement element_;
};

} // namespace TVR::Page
