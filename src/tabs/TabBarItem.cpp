#include "tabs/TabBarItem.h"

#include "platform/ui/Views.h"

#include <array>
#include <string_view>

namespace velmaro {

using ui::Button;
using ui::Color;
using ui::Fill;
using ui::Font;
using ui::HStack;
using ui::RoundedRectangle;
using ui::Symbol;
using ui::Text;
using ui::View;

namespace {

constexpr std::string_view fallbackTitle = "Velmaro Online";

constexpr std::array<std::string_view, 3> titleSuffixes{
    " — Velmaro Online",
    " - Velmaro Online",
    " | Velmaro Online",
};

View closeButton(const std::function<void()>& onClose, const Color& color)
{
    const ui::SymbolOptions look{.font = {.size = 8, .weight = Font::Weight::bold}, .color = color};
    return Button({.style = ui::ButtonStyle::plain, .help = "Close Tab"},
        Symbol("xmark", look).frame({.width = 14, .height = 14}), onClose)
        .opacity(0.7);
}

Color background(bool isActive, bool isHovered)
{
    if (isActive)
        return Color::accent.withOpacity(0.95);
    return Color::label.withOpacity(isHovered ? 0.08 : 0.04);
}

} // namespace

const ui::FrameOptions TabBarItem::width{.minWidth = 150, .idealWidth = 200, .maxWidth = 250};

View TabBarItem::body() const
{
    const bool showsClose = canClose && (isHovered() || isActive);
    const auto color = isActive ? Color::white : Color::label;
    const auto weight = isActive ? Font::Weight::semibold : Font::Weight::regular;
    const auto title = tabTitle(tab->pageTitle());

    return HStack{
        {.spacing = 6},
        Text(title, {.font = {.size = 12, .weight = weight}, .color = color})
            .frame({.maxWidth = ui::infinity}),
        showsClose ? closeButton(onClose, color)
                   : Fill(Color::clear).frame({.width = 14, .height = 14}),
    }
        .padding({.horizontal = 10, .vertical = 10})
        .frame(width)
        .background(
            RoundedRectangle({.cornerRadius = 6, .fill = background(isActive, isHovered())}))
        .accessibility(
            {.role = ui::Accessibility::Role::tab, .label = title, .isSelected = isActive})
        .onHover(isHovered.setter())
        .onTapGesture(onSelect)
        .onMiddleClick(canClose ? onClose : nullptr);
}

std::string tabTitle(const std::string& pageTitle)
{
    std::string_view title = pageTitle;
    for (const auto suffix : titleSuffixes) {
        if (title.ends_with(suffix)) {
            title.remove_suffix(suffix.size());
            break;
        }
    }
    return std::string(title.empty() ? fallbackTitle : title);
}

} // namespace velmaro
