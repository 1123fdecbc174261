#include "tabs/StationPillButton.h"

#include "platform/ui/Views.h"

namespace velmaro {

using ui::Button;
using ui::Color;
using ui::HStack;
using ui::Symbol;
using ui::Text;
using ui::View;

View StationPillButton::body() const
{
    const auto color = isActive ? Color::white : Color::label;
    return Button({.style = ui::ButtonStyle::bordered, .help = help, .isTinted = isActive},
        HStack{
            {.spacing = 6},
            Symbol(systemImage, {.font = {.size = 13}, .color = color}),
            Text(title, {.font = {.size = 13}, .color = color}),
        },
        action);
}

} // namespace velmaro
