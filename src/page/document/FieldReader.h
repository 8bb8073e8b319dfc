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

/// What the items of one document may ask for altogether.
struct ReadBudget {
  qint64 pixels = 150'000'000;
  qint64 numbers = 40'000'000;
};

/// Reads the fields of one element of the page document. A value stays as it was where the document
/// has none that fits. Long lists are taken out of the tree as they are read.
///
/// FieldWriter has the same operations, so that one description of an item (ItemFields.h) drives
/// both directions.
class FieldReader {
public:
  FieldReader(const QDomElement& element, ReadBudget& budget)
      : element_(element), budget_(budget) {}

  FieldReader child(const char* tag) const { return {element_.firstChildElement(tag), budget_}; }
  std::vector<FieldReader> children(const char* tag) const;
  /// Makes `entries` as long as there are children of this tag, and gives those.
  template <typename Entries>
  std::vector<FieldReader> entries(const char* tag, Entries& entries) const {
    std::vector<FieldReader> readers = children(tag);
    entries.resize(static_cast<typename Entries::size_type>(readers.size()));
    return readers;
  }

  void flag(const char* attribute, bool& value) const;
  void integer(const char* attribute, int& value, int lowest, int highest) const;
  void number(const char* attribute, double& value) const;
  void number(const char* attribute, std::optional<double>& value) const;
  /// A length: [mm] in the model, tenths of that in the document.
  void length(const char* attribute, double& value) const;
  void lengths(QPointF& value) const;
  void lengths(QSizeF& value) const;
  void lengths(QMarginsF& value) const;
  void numbers(QPointF& value) const;
  void numbers(QSizeF& value) const;
  void string(const char* attribute, QString& value) const;
  void colour(const char* attribute, QColor& value) const;
  /// An attribute that the model does not have: written if it is not there.
  void constant(const char*, const char*) const {}

  /// The element as a whole.
  void text(QString& value) const;
  void pen(QPen& value) const;
  void brush(QBrush& value) const;
  void font(QFont& value) const;
  void list(std::vector<double>& value) const;
  void list(std::vector<QPointF>& value) const;
  void list(std::vector<std::array<int, 4>>& value) const;
  void list(std::vector<int>& value) const;
  void list(QVector<int>& value) const;
  void list(QVector<QPointF>& value) const;
  void variant(QVariant& value, int depth = 0) const;
  void variants(QVariantList& value, int depth = 0) const;
  void image(QImage& value) const;

private:
  /// The text of the element, which goes out of the tree.
  QString takeText() const;
  template <typename Number>
  std::vector<Number> takeNumbers() const;

  QDomElement element_;
  ReadBudget& budget_;
};

} // namespace TVR::Page
