#pragma once

#include "platform/gtk/ui/Container.h"
#include "platform/gtk/ui/Interaction.h"
#include "platform/ui/Accessibility.h"

#include <optional>
#include <string>

namespace gtk {

// What the modifiers of a view do to the view as a whole: how it is seen, reached and found.
class GroupWidget final : public Container {
public:
    GroupWidget();
    void apply(const ui::Node& node) override;

private:
    // What is told to the toolkit only when it changes.
    struct Look {
        double opacity = 1;
        bool allowsHitTesting = true;
        std::string help;
        ui::Accessibility accessibility;

        bool operator==(const Look&) const = default;
    };

    void apply(const Look& look);
    void applyAccessibility(const Look& look);

    Interaction interaction_;
    std::optional<Look> look_; // absent until there is one
    bool isScrolledToVisible_ = false;
};

} // namespace gtk
