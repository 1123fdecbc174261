#pragma once

#include "location/StationKind.h"
#include "platform/ui/Binding.h"
#include "platform/ui/View.h"
#include "web/WebModel.h"

#include <memory>
#include <optional>

namespace velmaro {

// The leading end of the window's bar: the page's history, and the pages that a signed-in user goes
// to most.
struct NavigationToolbar {
    std::shared_ptr<WebModel> active;

    bool operator==(const NavigationToolbar&) const = default;
    ui::View body() const;
};

// The trailing end of the bar: buttons for what is around a place. It is empty until a user has
// signed in.
struct StationToolbar {
    std::shared_ptr<WebModel> active;
    ui::Binding<std::optional<StationKind>> pickerTarget;

    ui::View body() const;
};

} // namespace velmaro
