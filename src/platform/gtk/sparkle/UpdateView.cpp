#include "platform/gtk/sparkle/UpdateView.h"

#include "platform/ui/Views.h"

namespace gtk {

using ui::View;

namespace {

constexpr double margin = 20;
constexpr double iconSide = 64;
constexpr double leastWidth = 380; // of the texts
constexpr double notesHeight = 150;
constexpr int charactersInLine = 52;

using Model = std::shared_ptr<UpdateModel>;
using Pane = std::shared_ptr<const UpdatePane>;

View text(const std::string& text, const ui::Font& font)
{
    return ui::Text(text,
        {.font = font,
            .wraps = true,
            .alignment = ui::Alignment::leading,
            .lineLength = charactersInLine});
}

struct PaneProgress {
    Model model;
    std::string name;

    View body() const
    {
        const auto& [fraction, text] = model->progress();
        return ui::ProgressBar(fraction, {.isLine = false, .text = text, .name = name});
    }
};

View buttons(const Model& model, const Pane& pane)
{
    const auto button = [&](const UpdatePane::Button& button) -> View {
        const bool isDefault = &button == &pane->buttons.back();
        const auto press = [model, pane, action = button.action] {
            if (model->pane() == pane)
                action();
        };
        ui::ButtonOptions options{.title = button.title, .focusesWhenShown = isDefault};
        if (isDefault) {
            options.shortcut = ui::KeyboardShortcut::defaultAction;
            if (pane->buttons.size() > 1)
                options.style = ui::ButtonStyle::borderedProminent;
        }
        return ui::Button(options, press);
    };
    return ui::HStack{
        {.spacing = 8},
        ui::ForEach(pane->buttons, &UpdatePane::Button::title, button),
    }
        .padding({.top = 6})
        .frame({.maxWidth = ui::infinity, .alignment = ui::Alignment::trailing});
}

View column(const Model& model, const Pane& pane)
{
    return ui::VStack{
        {.spacing = 10, .alignment = ui::Alignment::leading},
        text(pane->title, {.size = 15, .weight = ui::Font::Weight::bold}),
        pane->text.empty() ? View() : text(pane->text, {.size = ui::Font::desktopSize}),
        pane->notes.empty()
            ? View()
            : ui::TextArea("What is new", pane->notes).frame({.height = notesHeight}),
        pane->showsProgress ? View(PaneProgress{model, pane->title}) : View(),
        pane->offersAutomaticChecks
            ? ui::Toggle("Check for updates automatically", model->checksAutomatically)
            : View(),
        buttons(model, pane),
    };
}

} // namespace

View UpdateView::body() const
{
    const auto pane = model->pane();
    if (!pane)
        return {};
    return ui::HStack{
        {.spacing = margin, .alignment = ui::Alignment::top},
        ui::ApplicationIcon().frame({.width = iconSide, .height = iconSide}),
        column(model, pane).frame({.minWidth = leastWidth}),
    }
        .padding({.horizontal = margin, .vertical = margin})
        .id(pane->title); // made anew, so that its default button has the keyboard
}

} // namespace gtk
