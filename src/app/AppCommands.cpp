#include "app/AppCommands.h"

#include "about/AboutWindowController.h"
#include "app/FocusedItem.h"
#include "tabs/TabbedAppModel.h"
#include "updates/CheckForUpdatesView.h"

namespace velmaro {

using ui::command;
using ui::CommandGroup;
using ui::MenuItem;
using ui::shiftCommand;
using Shortcuts = std::vector<ui::KeyEquivalent>;

std::vector<CommandGroup> AppCommands::body() const
{
    const auto tabs = [this](const char* id, const char* title, Shortcuts shortcuts, auto action) {
        return focusedItem(tabbedApp, id, title, std::move(shortcuts), action);
    };
    const auto page = [this](const char* id, const char* title, Shortcuts shortcuts, auto action) {
        return focusedItem(webModel, id, title, std::move(shortcuts), action);
    };
    const auto show = [&](const char* id, const char* title, Shortcuts shortcuts,
                          const char* route) {
        return page(
            id, title, std::move(shortcuts), [route](WebModel& tab) { tab.showRoute(route); });
    };
    const auto add = [&](const char* id, const char* title, Shortcuts shortcuts, const char* route,
                         const char* function) {
        return page(id, title, std::move(shortcuts),
            [route, function](WebModel& tab) { tab.showRouteAndCall(route, function); });
    };
    const auto find = [&](const char* id, const char* title, Shortcuts shortcuts, bool backwards) {
        return page(id, title, std::move(shortcuts), [backwards](WebModel& tab) {
            tab.findBarVisible = true;
            tab.find(backwards);
        });
    };
    const MenuItem aboutItem{
        .id = "about",
        .title = "About Velmaro Online",
        .action = [] { AboutWindowController::shared().show(); },
    };
    const CheckForUpdatesView checkForUpdates{updater};
    const MenuItem updateItem{
        .id = "check-for-updates",
        .title = checkForUpdates.title,
        .isEnabled = checkForUpdates.isEnabled(),
        .action = [checkForUpdates] { checkForUpdates.checkForUpdates(); },
    };
    const MenuItem restoreItem{
        .id = "restore-last-active-tab",
        .title = "Restore Last Active Tab on Launch",
        .isOn = restoreLastTab(),
        .action = [setting = restoreLastTab] { setting.set(!setting()); },
    };

    using enum ui::CommandGroupPlacement;
    using enum CommandGroup::Relation;
    return {
        {appInfo, replacing, {{aboutItem, updateItem}}},
        {newItem, replacing,
            {
                {
                    tabs("new-tab", "New Tab", {command("t")}, [](auto& app) { app.newTab(); }),
                    tabs("close-tab", "Close Tab", {command("w")},
                        [](auto& app) { app.closeTab(app.activeIndex()); }),
                },
                {
                    add("new-driver", "New Driver", {shiftCommand("d")}, "drivers", "addDriver"),
                    add("new-vehicle", "New Vehicle", {shiftCommand("v")}, "vehicles",
                        "addVehicle"),
                    add("log-fuel", "Log Fuel", {shiftCommand("f")}, "fuel", "addFuel"),
                    add("log-charging-session", "Log Charging Session", {shiftCommand("c")},
                        "charging", "addCharging"),
                },
                {
                    page("reload", "Reload", {command("r"), {ui::Key::f5}},
                        [](auto& tab) { tab.reloadKeepingRoute(); }),
                    show("overview", "Overview", {shiftCommand("h")}, "dashboard"),
                },
            }},
        {printItem, replacing, {}},
        {textEditing, replacing,
            {{
                page("find", "Find…", {command("f")}, [](auto& tab) { tab.findBarVisible = true; }),
                find("find-next", "Find Next", {command("g")}, false),
                find("find-previous", "Find Previous", {shiftCommand("g")}, true),
            }}},
        {toolbar, after,
            {
                {
                    page("back", "Back", {command("[")}, [](auto& tab) { tab.goBack(); }),
                    page("forward", "Forward", {command("]")}, [](auto& tab) { tab.goForward(); }),
                },
                {
                    tabs("next-tab", "Next Tab",
                        {shiftCommand("]"), command(ui::Key::tab), command(ui::Key::pageDown)},
                        [](auto& app) { app.nextTab(); }),
                    tabs("previous-tab", "Previous Tab",
                        {shiftCommand("["), shiftCommand(ui::Key::tab), command(ui::Key::pageUp)},
                        [](auto& app) { app.previousTab(); }),
                },
                {restoreItem},
            }},
        {help, replacing,
            {
                {show("whats-new", "What's New", {}, "whatsnew")},
                {
                    show("help-center", "Velmaro Help Center", {}, "help"),
                    show("support-tickets", "Support Tickets", {}, "support"),
                },
                {tabs("clear-all-cache", "Clear All Cache…", {},
                    [](auto& app) { app.clearAllCache(); })},
            }},
    };
}

} // namespace velmaro
