// docs/shortcuts.md lists all menu items in their order, with their keys. With VELMARO_WRITE_DOCS
// set in the environment it is written anew, else it has to be up to date.

#include "app/VelmaroOnlineApp.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr auto path = VELMARO_SOURCE_FOLDER "/docs"
                                            "/shortcuts.md";

// The keys of an item, which no other one has.
std::string keysOf(const ui::MenuItem& item, std::set<std::string>& taken)
{
    std::string keys;
    for (const auto& shortcut : item.shortcuts) {
        EXPECT_TRUE(taken.insert(label(shortcut)).second) << label(shortcut) << " is there twice";
        keys += (keys.empty() ? "" : ", ") + label(shortcut);
    }
    return keys;
}

std::string document(const std::vector<ui::Menu>& menus, std::set<std::string>& ids)
{
    std::string text =
        "# Menus and keyboard shortcuts\n\nThe keys work wherever the keyboard is in "
        "the main window, also in a page. Ctrl+? shows them in the program.\n"
        "A click with the middle button closes a tab.\n";
    std::set<std::string> taken;
    for (const auto& menu : menus) {
        text += "\n## " + menu.title + "\n\n| Command | Keys |\n|---|---|\n";
        for (const auto& section : menu.sections) {
            for (const auto& item : section) {
                EXPECT_TRUE(ids.insert(item.id).second) << item.id << " is there twice";
                if (item.isListed || !item.shortcuts.empty())
                    text += "| " + item.title + " | " + keysOf(item, taken) + " |\n";
            }
        }
    }
    return text;
}

} // namespace

TEST(ShortcutsDocument, isUpToDate)
{
    const velmaro::VelmaroOnlineApp app;
    const simulated::SimulatedPlatform platform;
    const auto scene = app.body();
    std::set<std::string> ids;
    const auto text = document(ui::menuBar(scene.title, scene.commands()), ids);
    for (const auto& action : scene.dockMenu)
        EXPECT_TRUE(ids.contains(action.menuItem)) << action.id;

    if (std::getenv("VELMARO_WRITE_DOCS"))
        std::ofstream(path) << text;
    std::ifstream file(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), text)
        << "VELMARO_WRITE_DOCS=1 script/test -R ShortcutsDocument writes it";
}
