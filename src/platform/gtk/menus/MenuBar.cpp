#include "platform/gtk/menus/MenuBar.h"

#include "platform/gtk/menus/Accelerator.h"

#include <cctype>
#include <utility>

namespace gtk {

namespace {

// What, when it changes, requires rebuilding the menus.
std::string outline(const std::vector<ui::Menu>& menus)
{
    std::string text;
    for (const auto& menu : menus) {
        text += menu.title + '\n';
        for (const auto& section : menu.sections) {
            text += '-';
            for (const auto& item : section)
                text += (item.isListed ? '+' : '-') + item.id + '\t' + item.title + '\n';
        }
    }
    return text;
}

Glib::RefPtr<Gio::MenuItem> menuItem(const ui::MenuItem& item)
{
    auto result = Gio::MenuItem::create(item.title, "app." + item.id);
    if (!item.shortcuts.empty()) {
        const auto keys = shownAccelerator(item.shortcuts.front());
        result->set_attribute_value("accel", Glib::Variant<Glib::ustring>::create(keys));
    }
    return result;
}

Glib::RefPtr<Gio::Menu> submenu(const ui::Menu& menu)
{
    auto result = Gio::Menu::create();
    for (const auto& section : menu.sections) {
        const auto items = Gio::Menu::create();
        for (const auto& item : section) {
            if (item.isListed)
                items->append_item(menuItem(item));
        }
        if (items->get_n_items() > 0)
            result->append_section("", items);
    }
    return result;
}

// The titles, each with an underline below the letter that opens its menu with Alt. The last menus
// have the first choice, since everybody knows theirs.
std::vector<std::string> titlesWithMnemonics(const std::vector<ui::Menu>& menus)
{
    std::vector<std::string> titles(menus.size());
    std::string taken;
    for (std::size_t index = menus.size(); index-- > 0;) {
        auto& title = titles[index] = menus[index].title;
        const auto isFree = [&](char letter) {
            return std::isalpha(static_cast<unsigned char>(letter))
                && taken.find(static_cast<char>(std::tolower(letter))) == std::string::npos;
        };
        const auto found = std::find_if(title.begin(), title.end(), isFree);
        if (found == title.end())
            continue;
        taken += static_cast<char>(std::tolower(*found));
        title.insert(found, '_');
    }
    return titles;
}

} // namespace

MenuBar::MenuBar(GtkApplication* application, Perform perform)
    : application_(application)
    , perform_(std::move(perform))
{
    gtk_application_set_menubar(application_, G_MENU_MODEL(model_->gobj()));
}

void MenuBar::show(std::vector<ui::Menu> menus)
{
    menus_ = std::move(menus);
    for (const auto& menu : menus_) {
        for (const auto& section : menu.sections) {
            for (const auto& item : section)
                update(item);
        }
    }
    if (std::exchange(outline_, outline(menus_)) != outline(menus_))
        fill();
}

void MenuBar::choose(const std::string& id)
{
    if (entries_.contains(id))
        activate(id);
}

void MenuBar::update(const ui::MenuItem& item)
{
    auto& entry = entries_[item.id];
    if (!entry.action) {
        entry.action = item.isOn ? Gio::SimpleAction::create_bool(item.id, *item.isOn)
                                 : Gio::SimpleAction::create(item.id);
        entry.action->signal_activate().connect(
            [this, id = item.id](const Glib::VariantBase&) { activate(id); });
        g_action_map_add_action(G_ACTION_MAP(application_), G_ACTION(entry.action->gobj()));
        setShortcuts(item);
    }
    if (entry.action->get_enabled() != item.isEnabled)
        entry.action->set_enabled(item.isEnabled);
    if (item.isOn)
        entry.action->set_state(Glib::Variant<bool>::create(*item.isOn));
    entry.item = item;
}

void MenuBar::setShortcuts(const ui::MenuItem& item)
{
    if (item.leavesKeysToViews)
        return;
    const auto keys = accelerators(item.shortcuts);
    std::vector<const char*> names;
    for (const auto& key : keys)
        names.push_back(key.c_str());
    names.push_back(nullptr);
    gtk_application_set_accels_for_action(application_, ("app." + item.id).c_str(), names.data());
}

void MenuBar::fill()
{
    model_->remove_all();
    const auto titles = titlesWithMnemonics(menus_);
    for (std::size_t index = 0; index < menus_.size(); ++index)
        model_->append_submenu(titles[index], submenu(menus_[index]));
}

void MenuBar::activate(const std::string& id)
{
    const auto item = entries_[id].item; // which its action may change
    if (item.standard)
        perform_(*item.standard);
    else if (item.action)
        item.action();
}

} // namespace gtk
