#pragma once

#include "platform/ui/View.h"

#include <functional>
#include <string>

namespace velmaro {

// A toolbar button with an icon and a title, highlighted while what it opens is open.
struct StationPillButton {
    std::string title;
    std::string systemImage;
    std::string help;
    bool isActive = false;
    std::function<void()> action;

    ui::View body() const;
};

} // namespace velmaro
