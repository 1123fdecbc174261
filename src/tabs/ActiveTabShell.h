#pragma once

#include "platform/ui/View.h"
#include "tabs/TabbedAppModel.h"

#include <memory>

namespace velmaro {

// The tabs' contents on top of each other. Every open tab keeps its page; only the active one is
// seen and clicked.
struct ActiveTabShell {
    std::shared_ptr<TabbedAppModel> app;
    std::shared_ptr<WebModel> active;

    ui::View body() const;
};

} // namespace velmaro
