#pragma once

#include <vector>

class QVariant;

namespace TVR::Page {

struct Item;
enum class ItemKind;

/// The value of a property by its number (host/PageProperty.h). Numbers that the kind of the item
/// has no field for give back what was set, or an invalid value; so do those that write one entry
/// of an array (Value, Node, Cell).
QVariant itemProperty(const Item& item, int number);

/// Sets a property by its number. Conversions are those that callers use: a pen may come as QPen or
/// as pen style, a size as QSize or QSizeF, a colour as QColor or Qt::GlobalColor, a brush as
/// QBrush, brush style or colour. False, and the item is as it was, if the value does not fit: not
/// a finite number, a count that is negative or above `maximumGridCount` (GridProperties.h), an
/// index without entry. What hangs on a value (the isolines of a grid's levels) is up to the
/// caller; the data sets whose lines no longer fit are marked by `linesAreStale`.
bool setItemProperty(Item& item, int number, const QVariant& value);

/// Whether the item keeps and gives back a value for this number that is worth comparing.
bool isReadable(ItemKind kind, int number);

/// All numbers that some kind has a field for, ascending.
std::vector<int> knownProperties();

} // namespace TVR::Page
