#pragma once

#include <QCoreApplication>
#include <QVariant>

#include <iterator>

namespace TVR {

/// What every table model shows in its headers: the heading of a column, translated in the given
/// context, and the plain number of a row. Invalid for a column beyond the headings.
template <class Headings>
QVariant tableHeader(const char* context, const Headings& headings, int section,
                     Qt::Orientation orientation) {
  if (orientation == Qt::Vertical)
    return section;
  if (section < 0 || section >= static_cast<int>(std::size(headings)))
    return {};
  return QCoreApplication::translate(context, headings[section]);
}

} // namespace TVR
