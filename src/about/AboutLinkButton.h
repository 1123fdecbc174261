#pragma once

#include "platform/ui/View.h"

#include <string>

namespace velmaro {

// A link of the About window, as wide as its title. It opens in the user's browser.
struct AboutLinkButton {
    std::string title;
    std::string url; // a click does nothing when it is not valid

    ui::View body() const;

    bool operator==(const AboutLinkButton&) const = default;
};

} // namespace velmaro
