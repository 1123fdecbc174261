#pragma once

#include "platform/ui/State.h"
#include "platform/ui/View.h"
#include "web/WebModel.h"

#include <functional>
#include <memory>
#include <string>
#include <tuple>

namespace velmaro {

// One tab in the strip: its page's title, and a button that closes it while it is active or under
// the pointer.
struct TabBarItem {
    std::shared_ptr<WebModel> tab;
    bool isActive = false;
    bool canClose = false;
    std::function<void()> onSelect = {};
    std::function<void()> onClose = {};
    ui::State<bool> isHovered = false;

    static const ui::FrameOptions width; // points

    auto state() { return std::tie(isHovered); }
    ui::View body() const;
};

// A page's title as a tab shows it: without the service's name at its end, which every page
// carries. Never empty.
std::string tabTitle(const std::string& pageTitle);

} // namespace velmaro
