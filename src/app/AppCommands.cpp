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
    const auto tabs = [this](const char* title, Shortcuts shortcuts, auto action) {
        return focusedItem(tabbedApp, title, std::move(shortcuts), action);
    };
    const auto page = [this](const char* title, Shortcuts shortcuts, auto action) {
        return focusedItem(webModel, title, std::move(shortcuts), action);
    };
    const auto show = [&](const char* title, Shortcuts shortcuts, const char* route) {
        return page(title, std::move(shortcuts), [route](WebModel& tab) { tab.showRoute(route); });
    };
    const auto add = [&](const char* title, Shortcuts shortcuts, const char* route,
                         const char* function) {
        return page(title, std::move(shortcuts),
            [route, function](WebModel& tab) { tab.showRouteAndCall(route, function); });
    };
    const auto find = [&](const char* title, Shortcuts shortcuts, bool backwards) {
        return page(title, std::move(shortcuts), [backwards](WebModel& tab) {
            tab.findBarVisible = true;
            tab.find(backwards);
        });
    };
    const MenuItem aboutItem{
        .title = "About Velmaro Online",
        .action = [] { AboutWindowController::shared().show(); },
    };
    const CheckForUpdatesView checkForUpdates{updater};
    const MenuItem updateItem{
        .title = checkForUpdates.title,
        .isEnabled = checkForUpdates.isEnabled(),
        .action = [checkForUpdates] { checkForUpdates.checkForUpdates(); },
    };
    const MenuItem restoreItem{
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
                    tabs("New Tab", {command("t")}, [](auto& app) { app.newTab(); }),
                    tabs("Close Tab", {command("w")},
                        [](auto& app) { app.closeTab(app.activeIndex()); }),
                },
                {
                    add("New Driver", {shiftCommand("d")}, "drivers", "addDriver"),
                    add("New Vehicle", {shiftCommand("v")}, "vehicles", "addVehicle"),
                    add("Log Fuel", {shiftCommand("f")}, "fuel", "addFuel"),
                    add("Log Charging Session", {shiftCommand("c")}, "charging", "addCharging"),
                },
                {
                    page("Reload", {command("r"), {ui::Key::f5}},
                        [](auto& tab) { tab.reloadKeepingRoute(); }),
                    show("Overview", {shiftCommand("h")}, "dashboard"),
                },
            }},
        {printItem, replacing, {}},
        {textEditing, replacing,
            {{
                page("Find…", {command("f")}, [](auto& tab) { tab.findBarVisible = true; }),
                find("Find Next", {command("g")}, false),
                find("Find Previous", {shiftCommand("g")}, true),
            }}},
        {toolbar, after,
            {
                {
                    page("Back", {command("[")}, [](auto& tab) { tab.goBack(); }),
                    page("Forward", {command("]")}, [](auto& tab) { tab.goForward(); }),
                },
                {
                    tabs("Next Tab",
                        {shiftCommand("]"), command(ui::Key::tab), command(ui::Key::pageDown)},
                        [](auto& app) { app.nextTab(); }),
                    tabs("Previous Tab",
                        {shiftCommand("["), shiftCommand(ui::Key::tab), command(ui::Key::pageUp)},
                        [](auto& app) { app.previousTab(); }),
                },
                {restoreItem},
            }},
        {help, replacing,
            {
                {show("What's New", {}, "whatsnew")},
                {
                    show("Velmaro Help Center", {}, "help"),
                    show("Support Tickets", {}, "support"),
                },
                {tabs("Clear All Cache…", {}, [](auto& app) { app.clearAllCache(); })},
            }},
    };
}

} // namespace velmaro
