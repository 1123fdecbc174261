#pragma once

#include "platform/ui/Menu.h"

#include <giomm/menu.h>
#include <giomm/simpleaction.h>
#include <gtk/gtk.h>
#include <map>
#include <string>

namespace gtk {

// The menu bar of the program, as the toolkit shows it in the windows or hands it to a desktop that
// has a bar for all programs. Each item is an action of the program, whose keys work wherever the
// focus is.
class MenuBar {
public:
    using Perform = std::function<void(ui::StandardCommand)>;

    // `application` must outlive this.
    MenuBar(GtkApplication* application, Perform perform);

    // Shows these in place of the menus before. The first call must come before the first window.
    void show(std::vector<ui::Menu> menus);

    // Does what the item with this id says, as if it had been chosen; nothing where there is no
    // such item.
    void choose(const std::string& id);

    const std::vector<ui::Menu>& menus() const { return menus_; }

private:
    struct Entry {
        ui::MenuItem item; // as it is described now
        Glib::RefPtr<Gio::SimpleAction> action;
    };

    void update(const ui::MenuItem& item);
    void setShortcuts(const ui::MenuItem& item);
    void fill();
    void activate(const std::string& id);

    GtkApplication* const application_;
    const Perform perform_;
    const Glib::RefPtr<Gio::Menu> model_ = Gio::Menu::create();
    std::vector<ui::Menu> menus_;
    std::map<std::string, Entry> entries_; // by id, which is also the name of the action
    std::string outline_; // of what the model holds
};

} // namespace gtk
