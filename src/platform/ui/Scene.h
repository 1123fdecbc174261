#pragma once

#include "platform/ui/CommandGroup.h"
#include "platform/ui/View.h"

#include <functional>
#include <string>
#include <vector>

namespace ui {

enum class WindowToolbarStyle {
    automatic,
    unified, // title and toolbar in one bar
};

// A menu item that the desktop also offers beside the application's icon, whether it runs or not.
// Chosen there it acts on a window of the scene, which is brought forward.
struct DockAction {
    std::string id; // by which the desktop knows the action
    std::string menuItem; // the item's id
};

// The application's window group, of which one window opens at launch, and its menus. The caller of
// `NSApplication::run` owns it.
struct Scene {
    std::string identifier;
    std::string title;
    WindowToolbarStyle toolbarStyle = WindowToolbarStyle::automatic;
    std::function<View()> content; // called once a window

    // The application's own items in the menu bar; evaluated again when a field that it has read
    // changes. May be absent.
    std::function<std::vector<CommandGroup>()> commands = {};

    std::vector<DockAction> dockMenu = {}; // in their order
};

} // namespace ui
