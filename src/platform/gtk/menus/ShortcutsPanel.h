#pragma once

#include "platform/ui/Menu.h"

#include <gtk/gtk.h>

namespace gtk {

// Opens a window over `parent` that lists the keys of all menu items. It owns itself and goes when
// it is closed.
void showShortcuts(const std::vector<ui::Menu>& menus, GtkWindow* parent);

} // namespace gtk
