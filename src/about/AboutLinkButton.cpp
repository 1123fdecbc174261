#include "about/AboutLinkButton.h"

#include "about/OpenLink.h"
#include "platform/ui/Views.h"

namespace velmaro {

using ui::Color;
using ui::Symbol;
using ui::Text;
using enum ui::Font::Weight;

ui::View AboutLinkButton::body() const
{
    const auto label = ui::HStack{
        {},
        Text(title, {.font = {.size = 12, .weight = medium}, .color = Color::white}),
        Symbol("arrow.up.right", {.font = {.size = 10, .weight = semibold}, .color = Color::white}),
    };
    const auto shape = ui::RoundedRectangle({
        .cornerRadius = 8,
        .fill = Color::white.withOpacity(0.08),
        .stroke = Color::white.withOpacity(0.15),
        .lineWidth = 1,
    });
    return ui::Button({.style = ui::ButtonStyle::plain, .help = title},
        label.padding({.horizontal = 12, .vertical = 8}).background(shape),
        [url = url] { openLink(url); });
}

} // namespace velmaro
