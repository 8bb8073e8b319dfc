#pragma once

#include "host/DataObserver.h"
#include "results/PageAccess.h"
#include "support/LockedElsewhere.h"
#include "support/ProjectTest.h"
#include "support/RecordingPage.h"

/// An observer that hears nothing of interest.
class SilentObserver final : public DATA::DataObserver {
public:
  void update(DATA::DataObject*) override {}
};

/// A graphics library that counts how often it is asked to refresh its views.
class CountingLibrary final : public Sketra_lib::GraphicsInterface {
public:
  virtual ~CountingLibrary() = default;
  BrenvikApp::WorkspaceWindow* graphicsWindow(const QString&, bool) override { return nullptr; }
  void refreshViews() override { ++refreshed; }
  int refreshed = 0;
};

inline QPolygonF polygon(std::initializer_list<QPointF> points) {
  return QVector<QPointF>(points);
}

/// A test of what stands on the page of a project: the page has the items of the template under
/// their English names.
class ResultPageTest : public ProjectTest {
protected:
  ResultPageTest() {
    const std::pair<int TVR::PageItems::*, const char*> names[] = {
        {&TVR::PageItems::programIdentification, "Program identification"},
        {&TVR::PageItems::projectAddress, "Project address"},
        {&TVR::PageItems::mapView, "Map view"},
        {&TVR::PageItems::summary, "Summary"},
        {&TVR::PageItems::ratePlot, "Demand plot (rates)"},
        {&TVR::PageItems::temperaturePlot, "Demand plot (temperature)"},
        {&TVR::PageItems::rateLabel, "Rate label"},
        {&TVR::PageItems::temperatureLabel, "Temperature label"},
        {&TVR::PageItems::mapLegend, "Map legend"},
        {&TVR::PageItems::mapScale, "Map scale"},
        {&TVR::PageItems::date, "Date"},
        {&TVR::PageItems::logo, "Logo"},
    };
    for (const auto& [id, name] : names)
      items.*id = page.addItem(name);
  }

  TVR::PageAccess access() { return {&page, &library, store, items, mutex}; }
  TVR::PageAccess noPage() { return {nullptr, &library, store, items, mutex}; }

  QVariant of(int item, int property) const { return page.itemProperty(item, property); }
  void give(int item, int property, const QVariant& value) {
    page.properties[item][property] = value;
  }
  /// Forgets what the page was told so far.
  void forget() {
    page.sets.clear();
    page.calls.clear();
  }

  RecordingPage page;
  CountingLibrary library;
  TVR::PageItems items;
  QRecursiveMutex mutex;
  SilentObserver observer;
};
