#include "web/FindBar.h"

#include "platform/ui/Views.h"
#include "web/AutoFocusedFindField.h"

namespace velmaro {

using ui::Button;
using ui::ButtonStyle;
using ui::Color;
using ui::Font;
using ui::HStack;
using ui::RoundedRectangle;
using ui::Symbol;
using ui::Text;
using ui::View;

namespace {

constexpr double fadeDuration = 0.18; // seconds

View notFound(const WebModel& model)
{
    if (model.findLastResult() != false || model.findQuery().empty())
        return {};
    return Text("Not found", {.font = {.size = 11}, .color = Color::secondaryLabel})
        .transition({.fades = true, .duration = fadeDuration});
}

View step(const char* symbol, const char* help, std::function<void()> action)
{
    return Button({.style = ButtonStyle::borderless, .help = help},
        Symbol(symbol, {.font = {.size = 12}}), std::move(action));
}

} // namespace

View FindBar::body() const
{
    const auto find = [model = model](bool backwards) {
        return [model, backwards] { model->find(backwards); };
    };
    const ui::SymbolOptions glass{
        .font = {.size = 12, .weight = Font::Weight::medium}, .color = Color::secondaryLabel};

    return HStack{
        {.spacing = 6},
        Symbol("magnifyingglass", glass),
        View(AutoFocusedFindField{model}).frame({.width = 220}),
        notFound(*model),
        step("chevron.up", "Previous match (⇧⌘G)", find(true)),
        step("chevron.down", "Next match (⌘G)", find(false)),
        Button({.style = ButtonStyle::borderless,
                   .help = "Close",
                   .shortcut = ui::KeyboardShortcut::cancelAction},
            Symbol("xmark", {.font = {.size = 12}}), [model = model] { model->closeFind(); }),
    }
        .padding({.horizontal = 10, .vertical = 6})
        .background(RoundedRectangle({
            .cornerRadius = 8,
            .fill = Color::material,
            .stroke = Color::black.withOpacity(0.08),
            .lineWidth = 0.5,
            .shadow = {.color = Color::black.withOpacity(0.18), .radius = 8, .y = 2},
        }));
}

} // namespace velmaro
