#pragma once

#include "platform/ui/Published.h"
#include "platform/ui/View.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gtk {

// What the updater's window shows at one moment.
struct UpdatePane {
    struct Button {
        std::string title;
        std::function<void()> action = {};
    };

    std::string title;
    std::string text = {}; // empty: there is none
    std::string notes = {}; // what is new; empty: there is no area for it
    bool showsProgress = false;
    bool offersAutomaticChecks = false; // with a check box
    std::vector<Button> buttons; // from the leading end; the last is the default
    std::function<void()> onClose = {}; // Escape, or the window's close button
};

// How far the work of a pane is.
struct UpdateProgress {
    std::optional<double> fraction = 0; // absent: there is no telling
    std::string text = {};
};

// What the updater has to say, and what the user sets.
struct UpdateModel {
    explicit UpdateModel(ui::Binding<bool> checksAutomatically)
        : checksAutomatically(std::move(checksAutomatically))
    {
    }

    ui::Published<std::shared_ptr<const UpdatePane>> pane; // null while there is nothing to say
    ui::Published<UpdateProgress> progress; // of the pane
    const ui::Binding<bool> checksAutomatically;
};

// The content of the updater's window. A button that belongs to an earlier pane does nothing.
struct UpdateView {
    std::shared_ptr<UpdateModel> model;

    ui::View body() const;
};

} // namespace gtk
