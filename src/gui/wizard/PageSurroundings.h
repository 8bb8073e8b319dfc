#pragma once

namespace BrenvikApp {
class ApplicationInterface;
}
namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// What the pages of wizards work on. Outlives them.
struct PageSurroundings {
  Data::Manager& store;
  BrenvikApp::ApplicationInterface* host = nullptr; ///< null without one
};

} // namespace TVR::GUI
