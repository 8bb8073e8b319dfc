#pragma once

class TVRInterface;

namespace BrenvikApp {
class ApplicationInterface;
}
namespace Sketra_lib {
class GraphicsInterface;
}

namespace TVR {

/// The plug-in's way to its host and to the host's graphics library. Each pointer is null until it
/// is set, and stays null without a host: whatever can run headless tests it first.
class AppInterface {
public:
  static BrenvikApp::ApplicationInterface* instance();
  static Sketra_lib::GraphicsInterface* graphics();
  static TVRInterface* plugin();

  static void setApplicationInterface(BrenvikApp::ApplicationInterface* host);
  static void setGraphicsInterface(Sketra_lib::GraphicsInterface* graphics);
  static void setPlugin(TVRInterface* plugin);

protected:
  BrenvikApp::ApplicationInterface* appInterface() const { return application_; }
  Sketra_lib::GraphicsInterface* graphicsInterface() const { return graphics_; }
  TVRInterface* self() const { return plugin_; }
  void setAppInterface(BrenvikApp::ApplicationInterface* host) { application_ = host; }
  void setGraphicsI(Sketra_lib::GraphicsInterface* graphics) { graphics_ = graphics; }
  void setSelf(TVRInterface* plugin) { plugin_ = plugin; }

private:
  AppInterface() = default;
  static AppInterface& singleton();

  Sketra_lib::GraphicsInterface* graphics_ = nullptr;
  BrenvikApp::ApplicationInterface* application_ = nullptr;
  TVRInterface* plugin_ = nullptr;
};

} // namespace TVR
