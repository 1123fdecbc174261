#pragma once

#include "platform/ui/View.h"

namespace velmaro {

// A plain panel with a faint application icon that hides a tab until its page has a title.
struct TabLoadingSplash {
    bool operator==(const TabLoadingSplash&) const = default;
    ui::View body() const;
};

} // namespace velmaro
