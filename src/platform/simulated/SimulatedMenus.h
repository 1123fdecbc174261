#pragma once

#include "platform/ui/MenuMount.h"

#include <optional>
#include <string>
#include <vector>

namespace simulated {

// The menu bar as a user meets it: to be read, and pressed by the titles and keys of its items.
class SimulatedMenus {
public:
    void show(const ui::Scene& scene);
    void takeDown() { mount_.reset(); }

    const std::vector<ui::Menu>& menus() const { return menus_; }

    // The item with this title; fails the test when there is no such item.
    const ui::MenuItem& item(const std::string& title) const;

    // The user chooses an item. One that is disabled does nothing, like on any desktop.
    void simulatePress(const std::string& title) const { press(item(title)); }

    // The user presses keys in the focused window; fails the test when they belong to no item or to
    // more than one.
    void simulateKeys(const ui::KeyEquivalent& keys) const;

    // The standard commands that were chosen, in order.
    mutable std::vector<ui::StandardCommand> standardCommands;

private:
    std::vector<const ui::MenuItem*> items() const;
    void press(const ui::MenuItem& item) const;

    std::vector<ui::Menu> menus_;
    std::optional<ui::MenuMount> mount_;
};

} // namespace simulated
