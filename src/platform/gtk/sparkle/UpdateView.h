#pragma once

#include "platform/gtk/sparkle/UpdatePane.h"
#include "platform/ui/Published.h"
#include "platform/ui/View.h"

#include <memory>

namespace gtk {

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
