#pragma once

#include "results/PageAccess.h"
#include "store/StoreTest.h"
#include "support/LockedElsewhere.h"
#include "support/ProjectTest.h"
#include "support/RecordingPage.h"

#include <QRecursiveMutex>

/// A page with a map and results, whose grid item answers with the isolines of the data set that is
/// selected.
class PageWithLines : public RecordingPage {
public:
  const int map = addItem("Map view");
  const int grid = addItem("Simulation results", map);

  int addLine(int set, double level, const QPolygonF& points, const QVariantList& breaks = {}) {
    const int id = addItem({}, grid);
    properties[id][Sketra_lib::Property::Level] = level;
    properties[id][Sketra_lib::Property::Points] = points;
    properties[id][Sketra_lib::Property::Breaks] = breaks;
    lines_[set].append(id);
    return id;
  }
  QVariant itemProperty(int item, int property) const override {
    if (item == grid && property == Sketra_lib::Property::IsolineIds)
      return lines_.value(selectedSet());
    return RecordingPage::itemProperty(item, property);
  }
  int selectedSet() const {
    return RecordingPage::itemProperty(grid, Sketra_lib::Property::SelectedSet).toInt();
  }

private:
  QMap<int, QVariantList> lines_;
};

/// Points at (first, 10 first), (first + 1, 10 first + 10) and so on.
inline QPolygonF pointsInARow(int count, double first = 0) {
  QPolygonF points;
  for (int i = 0; i < count; ++i)
    points << QPointF(first + i, 10 * (first + i));
  return points;
}

/// A test of what is done with a page that shows results.
class ExportTest : public ProjectTest {
protected:
  ExportTest() {
    items.mapView = page.map;
    items.results = page.grid;
  }
  TVR::PageAccess access() { return {&page, nullptr, store, items, mutex, store.fileName()}; }
  TVR::PageAccess accessWithoutWindow() { return {nullptr, nullptr, store, items, mutex}; }

  PageWithLines page;
  TVR::PageItems items;
  QRecursiveMutex mutex;
};
