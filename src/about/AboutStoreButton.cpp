#include "about/AboutStoreButton.h"

#include "about/OpenLink.h"
#include "platform/ui/Views.h"

namespace velmaro {

using ui::Color;
using ui::Symbol;
using ui::Text;
using enum ui::Font::Weight;

ui::View AboutStoreButton::body() const
{
    const auto texts = ui::VStack{
        {.spacing = 0, .alignment = ui::Alignment::leading},
        Text(subtitle, {.font = {.size = 9}, .color = Color::white.withOpacity(0.7)}),
        Text(title, {.font = {.size = 13, .weight = semibold}, .color = Color::white}),
    };
    const auto label = ui::HStack{
        {.spacing = 10},
        Symbol(systemImage, {.font = {.size = 20, .weight = semibold}, .color = Color::white})
            .frame({.width = 24}),
        texts,
    };
    const auto shape = ui::RoundedRectangle({
        .cornerRadius = 10,
        .fill = Color::white.withOpacity(0.1),
        .stroke = Color::white.withOpacity(0.18),
        .lineWidth = 1,
    });
    return ui::Button({.style = ui::ButtonStyle::plain, .help = title + " " + subtitle},
        label.padding({.horizontal = 12, .vertical = 10})
            .frame({.idealWidth = 0, .maxWidth = ui::infinity}) // as much as its neighbour
            .background(shape),
        [url = url] { openLink(url); });
}

} // namespace velmaro
