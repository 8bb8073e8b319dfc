#pragma once

#include "page/window/GraphicsLibrary.h"
#include "page/window/PageWindow.h"
#include "plugin/PluginTest.h"

#include <memory>

/// The plug-in with this project's own pages: nothing between it and its page is imitated.
class WholePlugin : public PluginTest {
protected:
  WholePlugin() {
    host.library = &pages;
    plugin->setAppInterface(&host);
  }
  ~WholePlugin() override { delete window(); }

  TVR::Page::PageWindow* window() { return dynamic_cast<TVR::Page::PageWindow*>(host.active); }
  QVariant of(int item, int property) { return window()->itemProperty(item, property); }
  TVR::PageItems& items() { return plugin->resultGraphic().items(); }
  /// The ids of the lines of a data set, which is then the selected one.
  QVariantList isolines(int dataSet) {
    window()->setItemProperty(items().results, Sketra_lib::Property::SelectedSet, dataSet);
    return of(items().results, Sketra_lib::Property::IsolineIds).toList();
  }
  /// A doublet around a place on the national grid, in a flow to the south-east.
  void prepareDoublet() {
    BatchProject project;
    project.set("hydraulic", "groundwater_flow_direction", 135);
    project.addWell("Pump", 681000, 227000, -0.002);
    project.addWell("Return", 681060, 226960, 0.002, -4);
    prepare(project);
    store.setValue(TVR::Parameter::ViewUseExtension, false);
    store.setValue(TVR::Parameter::ViewScale, 2000);
    store.setValue(TVR::Parameter::ViewX, 680880.0);
    store.setValue(TVR::Parameter::ViewY, 226880.0);
  }

  Host host;
  TVR::Page::GraphicsLibrary pages{host};
  std::unique_ptr<TVR::TVRPlugin> plugin = std::make_unique<TVR::TVRPlugin>();
};
