#include "tabs/TabBar.h"

#include "platform/ui/Deferred.h"
#include "platform/ui/Views.h"
#include "tabs/TabBarItem.h"

#include <algorithm>
#include <cstdlib>

namespace velmaro {

using platform::UUID;
using ui::Alignment;
using ui::Button;
using ui::Color;
using ui::Fill;
using ui::Font;
using ui::HStack;
using ui::ScrollArea;
using ui::View;

namespace {

using Tab = std::shared_ptr<WebModel>;
using App = std::shared_ptr<TabbedAppModel>;

// Nothing else than the id of a tab is taken. The dragged tab lands in front of the one it is
// dropped on.
bool moveDroppedTab(TabbedAppModel& app, const std::vector<std::string>& texts, const UUID& target)
{
    const auto dragged = texts.empty() ? std::nullopt : UUID::fromString(texts.front());
    if (!dragged)
        return false;
    app.moveTab(*dragged, target);
    return true;
}

// One tab's place in the strip. Places are compared, so that a change costs only the tabs that it
// concerns.
struct TabBarPlace {
    App app;
    Tab tab;
    bool isActive = false;
    bool canClose = false;
    bool isNearby = true; // to the active tab

    bool operator==(const TabBarPlace&) const = default;

    // Of many tabs, those far from the active one are out of sight at first.
    View body() const
    {
        return ui::Deferred{
            .isWantedNow = isNearby,
            .placeholder = Fill(Color::clear).frame(TabBarItem::width),
            .content = [place = *this] { return place.item(); },
        };
    }

    // Looked up when needed, not stored, so that a moved tab equals its old description.
    int index() const
    {
        return static_cast<int>(std::ranges::find(app->tabs(), tab) - app->tabs().begin());
    }

    View item() const
    {
        return View(TabBarItem{
                        .tab = tab,
                        .isActive = isActive,
                        .canClose = canClose,
                        .onSelect = [place = *this] { place.app->activeIndex = place.index(); },
                        .onClose = [place = *this] { place.app->closeTab(place.index()); },
                    })
            .draggable(tab->id.string())
            .dropDestination([app = app, target = tab->id](
                                 const auto& texts) { return moveDroppedTab(*app, texts, target); })
            .scrolledToVisible(isActive);
    }
};

TabBarPlace tabBarPlace(const App& app, const Tab& tab, int index)
{
    constexpr int nearbyTabs = 12; // to either side; more do not fit on a large screen
    return {
        .app = app,
        .tab = tab,
        .isActive = index == app->activeIndex(),
        .canClose = app->tabs().size() >= 2,
        .isNearby = std::abs(index - app->activeIndex()) <= nearbyTabs,
    };
}

View newTabButton(const App& app)
{
    return Button({.style = ui::ButtonStyle::plain, .help = "New Tab"},
        ui::Symbol("plus",
            {.font = {.size = 11, .weight = Font::Weight::semibold},
                .color = Color::secondaryLabel})
            .frame({.width = 28, .height = 24}),
        [app] { app->newTab(); });
}

} // namespace

View TabBar::body() const
{
    const auto tabId = [](const Tab& tab) { return tab->id.string(); };
    const auto place = [this, index = 0](
                           const Tab& tab) mutable { return tabBarPlace(app, tab, index++); };

    return ScrollArea({.axis = ui::Axis::horizontal, .showsIndicators = false},
        HStack{
            {.spacing = 4},
            ui::ForEach(app->tabs(), tabId, place),
            newTabButton(app),
        }
            .padding({.horizontal = 10, .vertical = 6})
            .accessibility({.role = ui::Accessibility::Role::tabList, .label = "Tabs"}))
        .frame({.height = 50, .maxWidth = ui::infinity})
        .background(Fill(Color::underPageBackground))
        .overlay(ui::Divider(), Alignment::bottom);
}

} // namespace velmaro
