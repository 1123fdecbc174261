#pragma once

#include "platform/ui/Layout.h"

#include <optional>

namespace ui {

// How a view comes and goes while its container stays. It is at once where the desktop asks for
// less motion. It is a plain value.
struct Transition {
    bool fades = false;
    std::optional<Edge> movesFrom = {};
    double duration = 0; // seconds, along an ease-out curve

    bool operator==(const Transition&) const = default;
};

} // namespace ui
