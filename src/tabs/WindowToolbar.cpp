#include "tabs/WindowToolbar.h"

#include "platform/ui/Views.h"
#include "tabs/StationPillButton.h"

#include <array>

namespace velmaro {

using ui::HStack;
using ui::View;

namespace {

struct StationPill {
    const char* title;
    const char* systemImage;
    const char* help;
    StationKind kind;
};

constexpr std::array stationPills{
    StationPill{"Gas", "fuelpump.fill", "Find gas stations", StationKind::gas},
    StationPill{"Charging", "bolt.car.fill", "Find charging stations", StationKind::evstations},
    StationPill{"Traffic", "exclamationmark.triangle.fill", "Traffic alerts", StationKind::traffic},
};

View toolbarButton(
    const char* symbol, const char* help, bool isEnabled, std::function<void()> action)
{
    return ui::Button({.style = ui::ButtonStyle::borderless, .help = help, .isEnabled = isEnabled},
        ui::Symbol(symbol, {.font = {.size = 13}}), std::move(action));
}

View routeButton(
    const std::shared_ptr<WebModel>& tab, const char* symbol, const char* help, const char* route)
{
    return toolbarButton(symbol, help, true, [tab, route] { tab->showRoute(route); });
}

} // namespace

View NavigationToolbar::body() const
{
    const auto tab = active;
    const bool isSignedIn = tab->user().has_value();
    return HStack{
        {.spacing = 2},
        toolbarButton("chevron.backward", "Back", tab->canGoBack(), [tab] { tab->goBack(); }),
        toolbarButton(
            "chevron.forward", "Forward", tab->canGoForward(), [tab] { tab->goForward(); }),
        toolbarButton("arrow.clockwise", "Reload", true, [tab] { tab->reloadKeepingRoute(); }),
        isSignedIn ? routeButton(tab, "chart.xyaxis.line", "Dashboard", "dashboard")
                         .padding({.leading = 8})
                   : View(),
        isSignedIn ? routeButton(tab, "person.2.fill", "Account Groups", "account-groups")
                         .padding({.trailing = 16})
                   : View(),
    }
        .accessibility({.role = ui::Accessibility::Role::toolbar, .label = "Navigation"});
}

View StationToolbar::body() const
{
    if (!active->user())
        return {};

    const auto pill = [this](const StationPill& pill) {
        const bool isOpen = pickerTarget.get() == pill.kind;
        const auto toggle = [target = pickerTarget, kind = pill.kind] {
            target.set(target.get() == kind ? std::nullopt : std::optional(kind));
        };
        return StationPillButton{.title = pill.title,
            .systemImage = pill.systemImage,
            .help = pill.help,
            .isActive = isOpen,
            .action = toggle};
    };
    const auto title = [](const StationPill& pill) { return std::string(pill.title); };
    return HStack{{.spacing = 6}, ui::ForEach(stationPills, title, pill)}.accessibility(
        {.role = ui::Accessibility::Role::toolbar, .label = "Nearby"});
}

} // namespace velmaro
