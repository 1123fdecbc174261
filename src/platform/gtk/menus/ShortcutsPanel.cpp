#include "platform/gtk/menus/ShortcutsPanel.h"

#include "platform/gtk/menus/Accelerator.h"

namespace gtk {

namespace {

std::string escaped(const std::string& text)
{
    char* markup = g_markup_escape_text(text.c_str(), -1);
    std::string result = markup;
    g_free(markup);
    return result;
}

std::string property(const char* name, const std::string& value)
{
    return std::string("<property name='") + name + "'>" + escaped(value) + "</property>";
}

std::string child(const char* type, const std::string& content)
{
    return std::string("<child><object class='") + type + "'>" + content + "</object></child>";
}

std::string row(const ui::MenuItem& item)
{
    std::string keys;
    for (const auto& shortcut : item.shortcuts)
        keys += (keys.empty() ? "" : " ") + shownAccelerator(shortcut);
    return child(
        "GtkShortcutsShortcut", property("title", item.title) + property("accelerator", keys));
}

// This version of the toolkit fills the window from a description only.
std::string description(const std::vector<ui::Menu>& menus)
{
    std::string groups;
    for (const auto& menu : menus) {
        std::string rows;
        for (const auto& section : menu.sections) {
            for (const auto& item : section)
                rows += item.shortcuts.empty() ? "" : row(item);
        }
        if (!rows.empty())
            groups += child("GtkShortcutsGroup", property("title", menu.title) + rows);
    }
    const auto section = child("GtkShortcutsSection",
        property("section-name", "all") + property("max-height", "16") + groups);
    return "<interface><object class='GtkShortcutsWindow' id='window'>" + property("modal", "1")
        + section + "</object></interface>";
}

} // namespace

void showShortcuts(const std::vector<ui::Menu>& menus, GtkWindow* parent)
{
    auto* builder = gtk_builder_new_from_string(description(menus).c_str(), -1);
    auto* window = GTK_WINDOW(gtk_builder_get_object(builder, "window"));
    gtk_window_set_transient_for(window, parent);
    gtk_window_present(window);
    g_object_unref(builder);
}

} // namespace gtk
