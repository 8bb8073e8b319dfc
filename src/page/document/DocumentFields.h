#pragma once

#include <QBrush>
#include <QByteArray>
#include <QColor>
#include <QDomElement>
#include <QFont>
#include <QImage>
#include <QMarginsF>
#include <QPen>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QVariant>
#include <QVector>

#include <array>
#include <optional>
#include <vector>

/// The two directions of the page document. FieldReader and FieldWriter have the same operations,
/// so that one description of an item (ItemFields.h) drives both; each stands on one element.
///
/// A reader leaves a value as it was where the document has none that fits, and takes long lists
/// out of the tree as it reads them. A writer writes into the element that was read, if there is
/// one, so that what it does not know stays in place.
namespace TVR::Page {

/// What the items of one document may ask for altogether.
struct ReadBudget {
  qint64 pixels = 150'000'000;
  qint64 numbers = 40'000'000;
};

/// Takes the text out of an element; elements and comments in it stay.
void removeText(QDomElement& element);

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
