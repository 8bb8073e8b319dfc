#pragma once

#include "contour/Isoline.h"
#include "host/PageProperty.h"
#include "results/PageAccess.h"

#include <vector>

namespace TVR {

/// How every exporter goes through the isolines of the result page: levels in [m] or [K], points in
/// map coordinates [m], breaks as the page has them, whichever they are.
using Contour::Isoline;

/// A stretch of an isoline: `count` points from the index `first` on.
struct IsolinePiece {
  int first;
  int count;
  bool operator==(const IsolinePiece&) const = default;
};

/// What happens to points behind the last break.
enum class LineRest { IsAPiece, IsLeftOut };

/// The pieces of a line in their order: one for each break, or one with all points where there are
/// no breaks. A line of at most two points has none. A break out of order or behind the last point
/// is taken for the nearest index that is possible.
std::vector<IsolinePiece> piecesOf(const Isoline& line, LineRest rest);

/// Whether the active window shows a map with results.
bool showsResults(const PageAccess& page);

/// Selects a data set of the results. The lock of the page is held for the selection only; false,
/// and the selection as it was, if it can't be had in time.
bool selectDataSet(const PageAccess& page, Sketra_lib::Property::DataSet set);

/// The isolines of the data set that is selected.
std::vector<int> isolineIds(const PageAccess& page);

/// The isoline with this id; without points if there is none.
Isoline readIsoline(const Sketra_lib::GraphicsWorkspaceWindow& window, int id);

} // namespace TVR
