#pragma once

#include "platform/ui/View.h"
#include "tabs/TabbedAppModel.h"

#include <memory>

namespace velmaro {

// The strip of open tabs, with a button for one more at its end.
struct TabBar {
    std::shared_ptr<TabbedAppModel> app;

    bool operator==(const TabBar&) const = default;
    ui::View body() const;
};

} // namespace velmaro
