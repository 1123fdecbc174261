#pragma once

#include <string>

namespace ui {

// What a view is to those who cannot see it. It is a plain value.
struct Accessibility {
    enum class Role { automatic, tabList, tab, toolbar, dialog };

    Role role = Role::automatic;
    std::string label = {}; // empty: what the view shows
    bool isSelected = false; // of a tab

    bool operator==(const Accessibility&) const = default;
};

} // namespace ui
