#pragma once

#include "platform/ui/View.h"

#include <string>

namespace velmaro {

// A link of the About window to a shop for mobile apps, as wide as it may be.
struct AboutStoreButton {
    std::string title;
    std::string subtitle;
    std::string systemImage; // name of a symbol
    std::string url; // a click does nothing when it is not valid

    ui::View body() const;

    bool operator==(const AboutStoreButton&) const = default;
};

} // namespace velmaro
