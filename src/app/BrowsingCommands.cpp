#include "app/BrowsingCommands.h"

#include "app/FocusedItem.h"
#include "tabs/TabbedAppModel.h"

#include <array>
#include <string>

namespace velmaro {

using ui::command;
using ui::CommandGroup;
using ui::MenuItem;

namespace {

constexpr std::array<const char*, 8> digits{"1", "2", "3", "4", "5", "6", "7", "8"};

void selectTab(TabbedAppModel& app, std::size_t index)
{
    if (index < app.tabs().size())
        app.activeIndex = static_cast<int>(index);
}

MenuItem unlisted(MenuItem item)
{
    item.isListed = false;
    return item;
}

} // namespace

std::vector<CommandGroup> BrowsingCommands::body() const
{
    const auto tabs = [this](std::string id, std::string title, ui::KeyEquivalent shortcut,
                          auto action) {
        return focusedItem(
            tabbedApp, std::move(id), std::move(title), {shortcut}, std::move(action));
    };
    const auto zoomItem = [&](const char* id, const char* title, const char* key, int percent) {
        auto item = tabs(id, title, command(key),
            [zoom = zoom, percent](TabbedAppModel&) { zoom.setPercent(percent); });
        item.isEnabled &= percent != zoom.percent();
        return item;
    };

    auto reopen = tabs("reopen-closed-tab", "Reopen Closed Tab", ui::shiftCommand("t"),
        [](auto& app) { app.reopenClosedTab(); });
    const auto app = tabbedApp();
    reopen.isEnabled = app && app->canReopenTab();

    CommandGroup::Section selectTabs;
    for (std::size_t index = 0; index < digits.size(); ++index) {
        const std::string digit = digits[index];
        selectTabs.push_back(unlisted(tabs("tab-" + digit, "Tab " + digit, command(digits[index]),
            [index](TabbedAppModel& app) { selectTab(app, index); })));
    }
    selectTabs.push_back(unlisted(tabs("last-tab", "Last Tab", command("9"),
        [](TabbedAppModel& app) { selectTab(app, app.tabs().size() - 1); })));

    using enum ui::CommandGroupPlacement;
    using enum CommandGroup::Relation;
    return {
        {newItem, after, {{reopen}}},
        {toolbar, after,
            {
                {
                    zoomItem("zoom-in", "Zoom In", "+", zoom.larger()),
                    zoomItem("zoom-out", "Zoom Out", "-", zoom.smaller()),
                    zoomItem("actual-size", "Actual Size", "0", PageZoom::actualSize),
                },
            }},
        {windowList, replacing, {selectTabs}},
    };
}

} // namespace velmaro
