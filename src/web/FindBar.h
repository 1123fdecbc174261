#pragma once

#include "platform/ui/View.h"
#include "web/WebModel.h"

#include <memory>

namespace velmaro {

// The bar that searches a tab's page: query, outcome, steps in both directions, close.
struct FindBar {
    std::shared_ptr<WebModel> model;

    bool operator==(const FindBar&) const = default;
    ui::View body() const;
};

} // namespace velmaro
