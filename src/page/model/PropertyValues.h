#pragma once

#include "contour/FinitePoints.h"

#include <QBrush>
#include <QColor>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QVariant>

#include <cmath>
#include <optional>
#include <type_traits>

namespace TVR::Page {

/// A value of a property as a `Value`, from the types in which callers write it; nothing if it is
/// none, numbers that are not finite and sizes below zero among them.
template <typename Value>
std::optional<Value> valueAs(const QVariant& value) {
  bool isNumber = true;
  if constexpr (std::is_same_v<Value, bool>) {
    return value.canConvert<bool>() ? std::optional(value.toBool()) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, int>) {
    const int number = value.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, double>) {
    const double number = value.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QString>) {
    return value.canConvert<QString>() ? std::optional(value.toString()) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QPointF>) {
    const QPointF point = value.toPointF();
    return value.canConvert<QPointF>() && Contour::isFinite(point) ? std::optional(point)
                                                                   : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QSizeF>) {
    const QSizeF size = value.toSizeF();
    const bool fits = value.canConvert<QSizeF>() && size.width() >= 0 && size.height() >= 0 &&
                      std::isfinite(size.width()) && std::isfinite(size.height());
    return fits ? std::optional(size) : std::nullopt;
  } else if constexpr (std::is_same_v<Value, QColor>) {
    if (value.userType() == QMetaType::QColor)
      return value.value<QColor>();
    const int global = value.toInt(&isNumber);
    if (isNumber && global >= Qt::color0 && global <= Qt::transparent)
      return QColor(static_cast<Qt::GlobalColor>(global));
    return std::nullopt;
  } else {
    static_assert(std::is_same_v<Value, QBrush>);
    if (value.userType() == QMetaType::QBrush)
      return value.value<QBrush>();
    if (value.userType() == QMetaType::QColor ||
        value.userType() == qMetaTypeId<Qt::GlobalColor>()) {
      const std::optional<QColor> colour = valueAs<QColor>(value);
      return colour ? std::optional(QBrush(*colour)) : std::nullopt;
    }
    const int style = value.toInt(&isNumber);
    if (isNumber && style >= Qt::NoBrush && style <= Qt::DiagCrossPattern)
      return QBrush(static_cast<Qt::BrushStyle>(style));
    return std::nullopt;
  }
}

inline std::optional<Qt::PenStyle> penStyle(const QVariant& value) {
  const std::optional<int> style = valueAs<int>(value);
  if (!style || *style < Qt::NoPen || *style > Qt::DashDotDotLine)
    return std::nullopt;
  return static_cast<Qt::PenStyle>(*style);
}

} // namespace TVR::Page
