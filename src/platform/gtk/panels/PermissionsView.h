#pragma once

#include "platform/ui/Binding.h"
#include "platform/ui/View.h"

#include <string>
#include <vector>

namespace gtk {

// What the user lets the application do, to be checked and unchecked. Desktops have no such list
// for programs that run outside a sandbox.
struct PermissionsView {
    struct Entry {
        std::string title;
        std::string explanation;
        ui::Binding<bool> isAllowed;
    };

    std::vector<Entry> entries;

    ui::View body() const;
};

} // namespace gtk
