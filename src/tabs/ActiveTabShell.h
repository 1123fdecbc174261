#pragma once

#include "location/StationKind.h"
#include "platform/ui/State.h"
#include "platform/ui/View.h"
#include "tabs/TabbedAppModel.h"
#include "web/PageMessageRules.h"

#include <memory>
#include <optional>
#include <tuple>

namespace velmaro {

// What fills the main window: the tab bar above the tabs' contents, the toolbar, and the location
// picker when one of the station finders is open.
struct ActiveTabShell {
    std::shared_ptr<TabbedAppModel> app;
    std::shared_ptr<WebModel> active;
    PageMessageRules pageMessages; // what the tabs' pages can ask for
    ui::State<std::optional<StationKind>> pickerTarget = std::optional<StationKind>();

    auto state() { return std::tie(pickerTarget); }
    ui::View body() const;
};

} // namespace velmaro
