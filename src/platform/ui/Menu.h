#pragma once

#include "platform/ui/CommandGroup.h"

#include <string>
#include <vector>

namespace ui {

// One menu of the menu bar.
struct Menu {
    std::string title;
    std::vector<CommandGroup::Section> sections; // each has an item at least
};

// The menus of an application, left to right: those that the platform gives to all of them, the
// first under the application's own title, with its groups put where they belong. Menus without
// items are left out.
std::vector<Menu> menuBar(const std::string& title, const std::vector<CommandGroup>& groups);

} // namespace ui
