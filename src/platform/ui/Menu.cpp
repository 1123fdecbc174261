#include "platform/ui/Menu.h"

#include <utility>

namespace ui {

namespace {

using enum CommandGroupPlacement;
using Section = CommandGroup::Section;

struct StandardMenu {
    const char* title; // null: the application's own
    std::vector<std::pair<CommandGroupPlacement, Section>> groups;
};

MenuItem standard(
    const char* id, const char* title, StandardCommand command, KeyEquivalent shortcut)
{
    return {.id = id, .title = title, .shortcuts = {shortcut}, .standard = command};
}

MenuItem editing(const char* id, const char* title, StandardCommand command, KeyEquivalent shortcut)
{
    auto item = standard(id, title, command, shortcut);
    item.leavesKeysToViews = true;
    return item;
}

std::vector<StandardMenu> standardMenus()
{
    return {
        {nullptr,
            {
                {appInfo, {}},
                {appSettings,
                    {{.id = "permissions",
                        .title = "Permissions\u2026",
                        .standard = StandardCommand::showPermissions}}},
                {appTermination, {standard("quit", "Quit", StandardCommand::quit, command("q"))}},
            }},
        {"File", {{newItem, {}}, {printItem, {}}}},
        {"Edit",
            {
                {undoRedo,
                    {
                        editing("undo", "Undo", StandardCommand::undo, command("z")),
                        editing("redo", "Redo", StandardCommand::redo, shiftCommand("z")),
                    }},
                {pasteboard,
                    {
                        editing("cut", "Cut", StandardCommand::cut, command("x")),
                        editing("copy", "Copy", StandardCommand::copy, command("c")),
                        editing("paste", "Paste", StandardCommand::paste, command("v")),
                        editing(
                            "select-all", "Select All", StandardCommand::selectAll, command("a")),
                    }},
                {textEditing, {}},
            }},
        {"View",
            {
                {toolbar, {}},
                {sidebar,
                    {standard("full-screen", "Full Screen", StandardCommand::toggleFullScreen,
                        {Key::f11})}},
            }},
        {"Window",
            {
                {windowSize,
                    {standard("minimize", "Minimize", StandardCommand::minimize, command("m"))}},
                {windowList, {}},
            }},
        {"Help",
            {
                {help, {}},
                {keyboardShortcuts,
                    {standard("keyboard-shortcuts", "Keyboard Shortcuts",
                        StandardCommand::showShortcuts, command("?"))}},
            }},
    };
}

void append(std::vector<Section>& sections, const Section& section)
{
    if (!section.empty())
        sections.push_back(section);
}

// What stands at one place of the bar.
void appendGroup(std::vector<Section>& sections, CommandGroupPlacement placement,
    const Section& standardItems, const std::vector<CommandGroup>& groups)
{
    bool isReplaced = false;
    for (const auto& group : groups)
        isReplaced |=
            group.placement == placement && group.relation == CommandGroup::Relation::replacing;
    if (!isReplaced)
        append(sections, standardItems);

    for (const auto relation : {CommandGroup::Relation::replacing, CommandGroup::Relation::after}) {
        for (const auto& group : groups) {
            if (group.placement != placement || group.relation != relation)
                continue;
            for (const auto& section : group.sections)
                append(sections, section);
        }
    }
}

} // namespace

std::vector<Menu> menuBar(const std::string& title, const std::vector<CommandGroup>& groups)
{
    std::vector<Menu> menus;
    for (const auto& standardMenu : standardMenus()) {
        Menu menu{.title = standardMenu.title ? standardMenu.title : title, .sections = {}};
        for (const auto& [placement, items] : standardMenu.groups)
            appendGroup(menu.sections, placement, items, groups);
        if (!menu.sections.empty())
            menus.push_back(std::move(menu));
    }
    return menus;
}

} // namespace ui
