#pragma once

#include "platform/ui/View.h"

#include <functional>
#include <string>
#include <vector>

namespace gtk {

// A list of what can be done with files: open them in one of the programs that can, send them by
// e-mail, copy them. Desktops have no such list of their own.
struct ShareView {
    struct Program {
        std::string name;
        std::string icon; // as the desktop writes it; empty: it has no picture
        std::function<void()> open;
    };

    std::vector<std::string> files; // their names
    std::vector<Program> programs;
    std::function<void()> sendByMail;
    std::function<void()> copy;
    std::function<void()> dismiss; // called before what was chosen

    ui::View body() const;

private:
    ui::View entry(const std::string& title, const std::string& icon,
        const std::function<void()>& action) const;
};

} // namespace gtk
