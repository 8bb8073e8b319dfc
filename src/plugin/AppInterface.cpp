#include "plugin/AppInterface.h"

namespace TVR {

AppInterface& AppInterface::singleton() {
  static AppInterface interface;
  return interface;
}

BrenvikApp::ApplicationInterface* AppInterface::instance() {
  return singleton().appInterface();
}

Sketra_lib::GraphicsInterface* AppInterface::graphics() {
  return singleton().graphicsInterface();
}

TVRInterface* AppInterface::plugin() {
  return singleton().self();
}

void AppInterface::setApplicationInterface(BrenvikApp::ApplicationInterface* host) {
  singleton().setAppInterface(host);
}

void AppInterface::setGraphicsInterface(Sketra_lib::GraphicsInterface* graphics) {
  singleton().setGraphicsI(graphics);
}

void AppInterface::setPlugin(TVRInterface* plugin) {
  singleton().setSelf(plugin);
}

} // namespace TVR
