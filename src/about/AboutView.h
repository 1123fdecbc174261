#pragma once

#include "platform/ui/View.h"

#include <string>

namespace velmaro {

// What the About window shows, read from the application's bundle when it is drawn.
struct AboutView {
    // Points.
    static constexpr double width = 420;
    static constexpr double height = 520;

    ui::View body() const;
};

// "Version 2.3 (41)".
std::string versionLine();

} // namespace velmaro
