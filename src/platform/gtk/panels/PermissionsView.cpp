#include "platform/gtk/panels/PermissionsView.h"

#include "platform/ui/Views.h"

namespace gtk {

namespace {

constexpr double margin = 18;
constexpr double gap = 12;
constexpr double indentation = 28; // to where the title of a check box begins
constexpr int longestLine = 46; // characters

ui::View entryView(const PermissionsView::Entry& entry)
{
    const ui::TextOptions explanation{
        .font = {.size = ui::Font::desktopSize},
        .color = ui::Color::secondaryLabel,
        .wraps = true,
        .alignment = ui::Alignment::leading,
        .lineLength = longestLine,
    };
    return ui::VStack{
        {.spacing = 0, .alignment = ui::Alignment::leading},
        ui::Toggle(entry.title, entry.isAllowed),
        ui::Text(entry.explanation, explanation)
            .frame({.maxWidth = ui::infinity, .alignment = ui::Alignment::leading})
            .padding({.leading = indentation}),
    };
}

} // namespace

ui::View PermissionsView::body() const
{
    return ui::VStack{
        {.spacing = gap, .alignment = ui::Alignment::leading},
        ui::ForEach(entries, &Entry::title, entryView),
    }
        .padding({.horizontal = margin, .vertical = margin});
}

} // namespace gtk
