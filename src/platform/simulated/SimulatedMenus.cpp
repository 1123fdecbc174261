#include "platform/simulated/SimulatedMenus.h"

#include "platform/simulated/Failure.h"

#include <algorithm>

namespace simulated {

void SimulatedMenus::show(const ui::Scene& scene)
{
    mount_.emplace(scene, [this](auto menus) { menus_ = std::move(menus); });
}

const ui::MenuItem& SimulatedMenus::item(const std::string& title) const
{
    for (const auto* item : items()) {
        if (item->title == title)
            return *item;
    }
    static const ui::MenuItem none;
    fail("no menu has an item called " + title);
    return none;
}

void SimulatedMenus::simulateKeys(const ui::KeyEquivalent& keys) const
{
    std::vector<const ui::MenuItem*> found;
    for (const auto* item : items()) {
        if (std::ranges::count(item->shortcuts, keys) > 0)
            found.push_back(item);
    }
    if (found.size() != 1)
        return fail(std::to_string(found.size()) + " items have the keys " + ui::label(keys));
    press(*found.front());
}

std::vector<const ui::MenuItem*> SimulatedMenus::items() const
{
    std::vector<const ui::MenuItem*> items;
    for (const auto& menu : menus_) {
        for (const auto& section : menu.sections) {
            for (const auto& item : section)
                items.push_back(&item);
        }
    }
    return items;
}

void SimulatedMenus::press(const ui::MenuItem& item) const
{
    if (!item.isEnabled)
        return;
    if (item.standard)
        standardCommands.push_back(*item.standard);
    const auto action = item.action; // which may change the menus
    if (action)
        action();
}

} // namespace simulated
