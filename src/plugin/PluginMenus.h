#pragma once

namespace BrenvikApp {
struct MainWindowMenuProvider;
}

namespace TVR {

class PluginActions;

/// Numbers of the host's own entries of the File menu, beside which the plug-in's stand.
namespace HostFileAction {
inline constexpr int beforeShapefile = 2;
inline constexpr int afterProjectFiles = 3;
} // namespace HostFileAction

/// Places the actions in the menus of the host; a menu that it does not have stays without them.
/// The menu of languages belongs to the settings menu from then on.
void addToMenus(const BrenvikApp::MainWindowMenuProvider& provider, const PluginActions& actions);

} // namespace TVR
