#pragma once

#include "plugin/PluginTest.h"
#include "support/LockedElsewhere.h"
#include "support/RecordingPage.h"

/// A test of the plug-in with a host whose active window shows a page. The page has the items of
/// the template under their English names.
class PagePluginTest : public PluginTest {
protected:
  PagePluginTest() {
    for (const char* name : {"Program identification", "Project address", "Map view", "Summary",
                             "Demand plot (rates)", "Demand plot (temperature)", "Rate label",
                             "Temperature label", "Map legend", "Map scale", "Date", "Logo"})
      page.addItem(name);
    using namespace Sketra_lib::Property;
    give(item("Map view"), Size, QSizeF(180, 120));
    for (const int margin : {MarginTop, MarginLeft, MarginRight, MarginBottom})
      give(item("Map view"), margin, 10);
    library.window = &page;
    host.library = &library;
    host.active = &page;
    host.windows = {&page};
    plugin.setAppInterface(&host);
  }

  int item(const QString& name) const { return page.itemByName(name, 0); }
  QVariant of(const QString& name, int property) const {
    return page.itemProperty(item(name), property);
  }
  void give(int id, int property, const QVariant& value) { page.properties[id][property] = value; }
  void forget() {
    page.sets.clear();
    page.calls.clear();
  }
  TVR::ResultGraphic& graphic() { return plugin.resultGraphic(); }
  TVR::PageItems& items() { return graphic().items(); }
  bool invoke(const char* slot) { return QMetaObject::invokeMethod(&plugin, slot); }

  RecordingPage page;
  Library library;
  Host host;
  TVR::TVRPlugin plugin;
};
