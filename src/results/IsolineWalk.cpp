#include "results/IsolineWalk.h"

#include <QPolygonF>

#include <algorithm>

namespace TVR {

using namespace Sketra_lib;

namespace {

constexpr int shortestLine = 3; // points

template <typename Numbers>
Numbers numbers(const QVariant& list) {
  Numbers result;
  for (const QVariant& number : list.value<QVariantList>())
    result.push_back(number.toInt());
  return result;
}

} // namespace

std::vector<IsolinePiece> piecesOf(const Isoline& line, LineRest rest) {
  const int count = line.points.size();
  if (count < shortestLine)
    return {};
  if (line.breaks.empty())
    return {{0, count}};
  std::vector<IsolinePiece> pieces;
  int first = 0;
  for (const int end : line.breaks) {
    const int next = std::clamp(end, first, count);
    pieces.push_back({first, next - first});
    first = next;
  }
  if (rest == LineRest::IsAPiece && first != count)
    pieces.push_back({first, count - first});
  return pieces;
}

bool showsResults(const PageAccess& page) {
  return page.showsPage() && page.items.results != 0 && page.items.mapView != 0;
}

bool selectDataSet(const PageAccess& page, Property::DataSet set) {
  const PageLock lock(page.mutex);
  if (lock)
    page.window->setItemProperty(page.items.results, Property::SelectedSet, int(set));
  return bool(lock);
}

std::vector<int> isolineIds(const PageAccess& page) {
  return numbers<std::vector<int>>(
      page.window->itemProperty(page.items.results, Property::IsolineIds));
}

Isoline readIsoline(const GraphicsWorkspaceWindow& window, int id) {
  return {window.itemProperty(id, Property::Points).value<QPolygonF>(),
          numbers<QVector<int>>(window.itemProperty(id, Property::Breaks)),
          window.itemProperty(id, Property::Level).toDouble()};
}

} // namespace TVR
