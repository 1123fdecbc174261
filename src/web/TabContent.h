#pragma once

#include "platform/ui/View.h"
#include "web/PageMessageRules.h"
#include "web/WebModel.h"

#include <memory>

namespace velmaro {

// What fills a tab: its web view, a splash over it until the page has a title, and a progress line
// while it loads.
struct TabContent {
    std::shared_ptr<WebModel> model;
    PageMessageRules pageMessages = {}; // what its page can ask for

    bool operator==(const TabContent&) const = default;
    ui::View body() const;
};

} // namespace velmaro
