#pragma once

#include "platform/ui/MenuItem.h"

#include <vector>

namespace ui {

// Groups of items that the menu bar of every application has, in the order in which they stand
// there.
enum class CommandGroupPlacement {
    // in the application's own menu
    appInfo,
    appSettings,
    appTermination,
    // File
    newItem,
    printItem,
    // Edit
    undoRedo,
    pasteboard,
    textEditing,
    // View
    toolbar,
    sidebar,
    // Window
    windowSize,
    windowList,
    // Help
    help,
    keyboardShortcuts,
};

// An application's own items in the menu bar. It is a plain value.
struct CommandGroup {
    enum class Relation { replacing, after };
    using Section = std::vector<MenuItem>; // lines separate it from others

    CommandGroupPlacement placement;
    Relation relation = Relation::replacing; // of the platform's items at that place
    std::vector<Section> sections = {};
};

} // namespace ui
