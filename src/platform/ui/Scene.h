#pragma once

#include "platform/ui/View.h"

#include <functional>
#include <string>

namespace ui {

enum class WindowToolbarStyle {
    automatic,
    unified, // title and toolbar in one bar
};

// The windows of an application: one group, of which the platform opens one at launch.
struct Scene {
    std::string identifier;
    std::string title;
    WindowToolbarStyle toolbarStyle = WindowToolbarStyle::automatic;
    std::function<View()> content; // called once a window
};

} // namespace ui
