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

// The windows of an application, one group of which the platform opens one at launch, and its
// menus. The caller of `NSApplication::run` owns it.
struct Scene {
    std::string identifier;
    std::string title;
    WindowToolbarStyle toolbarStyle = WindowToolbarStyle::automatic;
    std::function<View()> content; // called once a window

    // The application's own items in the menu bar; evaluated again when a field that it has read
    // changes. May be absent.
    std::function<std::vector<CommandGroup>()> commands = {};

    // Titles of those menu items that the desktop also offers beside the application's icon,
    // whether it runs or not. Chosen there they act on a window of this scene, which is brought
    // forward.
    std::vector<std::string> dockMenu = {};
};

} // namespace ui
