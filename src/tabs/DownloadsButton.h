#pragma once

#include "platform/ui/State.h"
#include "platform/ui/View.h"

#include <tuple>

namespace velmaro {

// Shows in the window's bar how far downloads are, and which there were, while there are any.
struct DownloadsButton {
    ui::State<bool> isOpen = false;

    auto state() { return std::tie(isOpen); }
    ui::View body() const;
};

} // namespace velmaro
