#pragma once

#include "page/model/Items.h"
#include "page/model/PropertyValues.h"

#include <optional>
#include <type_traits>

/// What the table of properties (ItemProperties.cpp) is made of.
namespace TVR::Page {

/// One property of one kind of item. A row of every item has the kind `nullopt`; a row without
/// `get` writes a single entry of an array and gives nothing back.
struct Row {
  int number;
  std::optional<ItemKind> kind;
  QVariant (*get)(const Item&);
  bool (*set)(Item&, const QVariant&);
};

template <typename Kind>
constexpr std::optional<ItemKind> kindOf() {
  if constexpr (std::is_same_v<Kind, Item>)
    return std::nullopt;
  else
    return Kind::ownKind;
}

/// A row made of two functions of the item struct: `get(const Kind&)` gives the value, and
/// `set(Kind&, const QVariant&)` writes it and says whether it fits.
template <typename Kind, typename Get, typename Set>
constexpr Row row(int number, Get, Set) {
  static_assert(std::is_empty_v<Get> && std::is_empty_v<Set>);
  return {number, kindOf<Kind>(),
          [](const Item& item) { return QVariant(Get{}(static_cast<const Kind&>(item))); },
          [](Item& item, const QVariant& value) { return Set{}(static_cast<Kind&>(item), value); }};
}

/// A row that only writes.
template <typename Kind, typename Set>
constexpr Row entryRow(int number, Set) {
  static_assert(std::is_empty_v<Set>);
  return {number, kindOf<Kind>(), nullptr,
          [](Item& item, const QVariant& value) { return Set{}(static_cast<Kind&>(item), value); }};
}

template <auto Path>
struct PathOf;
template <typename Kind, typename Value, Value Kind::*Member>
struct PathOf<Member> {
  using Owner = Kind;
  using Type = Value;
};

/// A row whose value is a member of the item struct, as the type of the member says.
template <typename Kind, auto Member>
constexpr Row field(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<Kind>(
      number, [](const Kind& item) { return QVariant::fromValue(item.*Member); },
      [](Kind& item, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          item.*Member = *read;
        return read.has_value();
      });
}

/// The same for a length, whose property is in [cm].
template <typename Kind, double Kind::*Member>
constexpr Row centimetres(int number) {
  constexpr double millimetres = 10;
  return row<Kind>(
      number, [](const Kind& item) { return item.*Member / millimetres; },
      [](Kind& item, const QVariant& value) {
        const std::optional<double> length = valueAs<double>(value);
        if (length)
          item.*Member = *length * millimetres;
        return length.has_value();
      });
}

/// The same for a member of one of the plot's axes.
template <Axis PlotItem::*Which, auto Member>
constexpr Row axis(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<PlotItem>(
      number, [](const PlotItem& plot) { return QVariant::fromValue(plot.*Which.*Member); },
      [](PlotItem& plot, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          plot.*Which.*Member = *read;
        return read.has_value();
      });
}

/// The same for a member of the grid's selected data set.
template <auto Member>
constexpr Row setField(int number) {
  using Type = typename PathOf<Member>::Type;
  return row<GridDataItem>(
      number,
      [](const GridDataItem& grid) {
        return QVariant::fromValue(grid.sets[grid.selectedSet].*Member);
      },
      [](GridDataItem& grid, const QVariant& value) {
        const std::optional<Type> read = valueAs<Type>(value);
        if (read)
          grid.sets[grid.selectedSet].*Member = *read;
        return read.has_value();
      });
}

template <auto Get, auto Set>
constexpr Row margin(int number) {
  return row<PlotItem>(
      number, [](const PlotItem& plot) { return (plot.margins.*Get)(); },
      [](PlotItem& plot, const QVariant& value) {
        const std::optional<double> length = valueAs<double>(value);
        if (length)
          (plot.margins.*Set)(*length);
        return length.has_value();
      });
}

template <typename Kind>
constexpr Row lineColour(int number) {
  return row<Kind>(
      number, [](const Kind& item) { return item.pen.color(); },
      [](Kind& item, const QVariant& value) {
        const std::optional<QColor> colour = valueAs<QColor>(value);
        if (colour)
          item.pen.setColor(*colour);
        return colour.has_value();
      });
}

template <typename Kind>
constexpr Row lineStyle(int number) {
  return row<Kind>(
      number, [](const Kind& item) { return static_cast<int>(item.pen.style()); },
      [](Kind& item, const QVariant& value) {
        const std::optional<Qt::PenStyle> style = penStyle(value);
        if (style)
          item.pen.setStyle(*style);
        return style.has_value();
      });
}

template <typename Kind>
constexpr Row legendText(int number) {
  return row<Kind>(
      number,
      [](const Kind& item) {
        return QVariantMap{{"Text", item.legendText}, {"Font", item.legendFont}};
      },
      [](Kind& item, const QVariant& value) {
        const QVariantMap map = value.toMap();
        if (map.contains("Text"))
          item.legendText = map["Text"].toString();
        if (map.value("Font").userType() == QMetaType::QFont)
          item.legendFont = map["Font"].value<QFont>();
        return map.contains("Text") || map.contains("Font");
      });
}

} // namespace TVR::Page
