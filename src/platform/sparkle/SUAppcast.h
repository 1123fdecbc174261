#pragma once

#include "platform/sparkle/SUAppcastItem.h"

#include <optional>
#include <string_view>
#include <vector>

namespace platform {

// A feed of versions: RSS whose items have the "sparkle" namespace's elements and attributes. It is
// a plain value for any thread.
struct SUAppcast {
    std::vector<SUAppcastItem> items; // for this system, in the feed's order

    // Items without version, package or length are left out, and so are those for other systems.
    // Absent when the text is no such feed. A document type is refused: feeds need none, and it
    // could define texts that grow beyond all bounds.
    static std::optional<SUAppcast> parse(std::string_view text);

    // The item with the highest version; null when there are no items.
    const SUAppcastItem* newest() const;
};

} // namespace platform
