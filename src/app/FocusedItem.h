#pragma once

#include "platform/ui/FocusedScene.h"
#include "platform/ui/MenuItem.h"

#include <utility>

namespace velmaro {

// A menu item that calls `action` with what is focused when it is pressed, and that cannot be
// pressed while nothing is.
template <class Key, class Action>
ui::MenuItem focusedItem(const ui::FocusedValue<Key>& focused, std::string id, std::string title,
    std::vector<ui::KeyEquivalent> shortcuts, Action action)
{
    return {
        .id = std::move(id),
        .title = std::move(title),
        .shortcuts = std::move(shortcuts),
        .isEnabled = focused() != nullptr,
        .action =
            [focused, action = std::move(action)] {
                if (const auto target = focused())
                    action(*target);
            },
    };
}

} // namespace velmaro
