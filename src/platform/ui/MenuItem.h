#pragma once

#include "platform/ui/KeyEquivalent.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ui {

// What the platform itself does in its own items of the menus, to whatever has the focus.
enum class StandardCommand {
    quit,
    undo,
    redo,
    cut,
    copy,
    paste,
    selectAll,
    toggleFullScreen,
    minimize,
    showPermissions, // a window with what the user lets the application do
    showShortcuts, // a window with the keys of all items
};

// One line of a menu. It is a plain value.
struct MenuItem {
    // What the item is known by: lower-case words with hyphens between them, once in an
    // application. Never shown, and the same whatever the title is.
    std::string id;

    std::string title;
    std::vector<KeyEquivalent> shortcuts = {}; // the first is shown beside the title
    bool isEnabled = true; // its keys do nothing either while it is not
    std::optional<bool> isOn = {}; // whether it has its check mark; absent: it never has one
    bool isListed = true; // in the menu; else there are only its keys
    std::function<void()> action = {};

    // In place of an action.
    std::optional<StandardCommand> standard = {};

    // Views have these keys of their own and do more with them than the item could, so the item
    // shows them and leaves them alone.
    bool leavesKeysToViews = false;
};

} // namespace ui
