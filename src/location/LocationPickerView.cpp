#include "location/LocationPickerView.h"

#include "platform/ui/Views.h"

#include <string>

namespace velmaro {

using ui::Alignment;
using ui::Button;
using ui::ButtonStyle;
using ui::Color;
using ui::Divider;
using ui::Font;
using ui::HStack;
using ui::RoundedRectangle;
using ui::Spacer;
using ui::Symbol;
using ui::Text;
using ui::View;
using ui::VStack;

namespace {

using Model = std::shared_ptr<LocationPickerModel>;
using Suggestion = LocationPickerModel::Suggestion;
using Picked = std::function<void(const PickedLocation&)>;

// A failure is not passed on: the model has put it on the status line.
LocationPickerModel::Completion finishPick(const Picked& onPick)
{
    return [onPick](const LocationPickerModel::Result& result) {
        if (const auto* location = std::get_if<PickedLocation>(&result))
            onPick(*location);
    };
}

View secondary(std::string text, double size)
{
    return Text(std::move(text),
        {.font = {.size = size},
            .color = Color::secondaryLabel,
            .wraps = true,
            .alignment = Alignment::leading});
}

View header(StationKind kind, const std::function<void()>& onCancel)
{
    const auto& look = appearance(kind);
    const ui::TextOptions title{
        .font = {.size = 17, .weight = Font::Weight::semibold}, .alignment = Alignment::leading};

    return HStack{
        {.spacing = 12, .alignment = Alignment::top},
        Symbol(std::string(look.icon),
            {.font = {.size = 18, .weight = Font::Weight::semibold}, .color = Color::accent})
            .frame({.width = 28, .height = 28}),
        VStack{
            {.spacing = 2, .alignment = Alignment::leading},
            Text(std::string(look.title), title),
            secondary(std::string(look.explanation), 12),
        },
        Spacer(),
        Button({.style = ButtonStyle::plain,
                   .help = "Close",
                   .shortcut = ui::KeyboardShortcut::cancelAction},
            Symbol("xmark", {.font = {.size = 11, .weight = Font::Weight::semibold}})
                .frame({.width = 22, .height = 22}),
            onCancel),
    }
        .padding({.horizontal = 20, .top = 18, .bottom = 14});
}

View clearButton(const Model& model, const std::function<void(bool)>& focusQuery)
{
    return Button({.style = ButtonStyle::plain, .help = "Clear"},
        Symbol("xmark.circle.fill", {.color = Color::secondaryLabel}), [model, focusQuery] {
            model->setQuery("");
            focusQuery(true);
        });
}

View keyCap()
{
    return Text(
        "⏎", {.font = {.size = 11, .weight = Font::Weight::medium}, .color = Color::secondaryLabel})
        .padding({.horizontal = 6, .vertical = 2})
        .background(
            RoundedRectangle({.cornerRadius = 4, .fill = Color::secondaryLabel.withOpacity(0.12)}));
}

View suggestionRow(const Suggestion& suggestion, bool isFirst, std::function<void()> resolve)
{
    const ui::TextOptions title{.font = {.size = 13, .weight = Font::Weight::medium},
        .wraps = true,
        .alignment = Alignment::leading};
    const auto name = suggestion->subtitle.empty()
        ? suggestion->title
        : suggestion->title + ", " + suggestion->subtitle;

    return Button({.style = ButtonStyle::plain, .help = name},
        HStack{
            {.spacing = 10, .alignment = Alignment::top},
            Symbol("mappin.circle.fill", {.font = {.size = 16}, .color = Color::secondaryLabel})
                .padding({.top = 1}),
            VStack{
                {.spacing = 2, .alignment = Alignment::leading},
                Text(suggestion->title, title),
                suggestion->subtitle.empty() ? View() : secondary(suggestion->subtitle, 11),
            },
            Spacer(),
            isFirst ? keyCap() : View(),
        }
            .padding({.horizontal = 20, .vertical = 9}),
        std::move(resolve));
}

View suggestionList(const Model& model, const Picked& onPick)
{
    const auto& suggestions = model->suggestions();
    const auto key = [](const Suggestion& suggestion) {
        return suggestion->title + "\n" + suggestion->subtitle;
    };
    const auto entry = [&, index = std::size_t{0}](const Suggestion& suggestion) mutable {
        const bool isFirst = index == 0;
        const bool isLast = ++index == suggestions.size();
        const auto resolve = [model, suggestion, onPick] {
            model->resolve(suggestion, finishPick(onPick));
        };
        return VStack{
            {.spacing = 0, .alignment = Alignment::leading},
            suggestionRow(suggestion, isFirst, resolve).frame({.maxWidth = ui::infinity}),
            isLast ? View() : Divider().padding({.leading = 46}),
        };
    };

    return ui::ScrollArea({.axis = ui::Axis::vertical},
        VStack{
            {.spacing = 0, .alignment = Alignment::leading},
            ui::ForEach(suggestions, key, entry),
        });
}

View emptyState(const Model& model, const Picked& onPick)
{
    const View sign = model->isResolving()
        ? ui::Spinner().frame({.width = 16, .height = 16})
        : Symbol("location.fill", {.font = {.size = 13}, .color = Color::white});

    return VStack{
        {.spacing = 14},
        Spacer(8),
        Button({.style = ButtonStyle::borderedProminent, .help = "Use my current location"},
            HStack{
                {.spacing = 8},
                sign,
                Text("Use my current location",
                    {.font = {.size = 13, .weight = Font::Weight::medium}, .color = Color::white}),
            }
                .padding({.horizontal = 16, .vertical = 9}),
            [model, onPick] { model->requestCurrentLocation(finishPick(onPick)); }),
        secondary("or start typing an address above", 11),
        Spacer(),
    }
        .frame({.maxWidth = ui::infinity});
}

View statusLine(const Model& model)
{
    const auto& message = model->statusMessage();
    if (!message)
        return {};
    return secondary(*message, 11).padding({.horizontal = 20, .bottom = 14});
}

} // namespace

View LocationPickerView::body() const
{
    const auto picker = model();
    const bool isFocused = queryFocused();
    const auto submit = [picker, onPick = onPick](ui::EventModifiers) {
        if (!picker->suggestions().empty())
            picker->resolve(picker->suggestions().front(), finishPick(onPick));
    };
    const View searchBox =
        HStack{
            {.spacing = 10},
            Symbol("magnifyingglass",
                {.font = {.size = 14, .weight = Font::Weight::medium},
                    .color = Color::secondaryLabel}),
            ui::TextField({.placeholder = "Search for an address or place",
                              .font = {.size = 15},
                              .focusesWhenShown = true,
                              .isFocused = queryFocused.binding(),
                              .onSubmit = submit},
                picker->queryBinding()),
            picker->query().empty() ? View() : clearButton(picker, queryFocused.setter()),
        }
            .padding({.horizontal = 14, .vertical = 11})
            .background(RoundedRectangle({
                .cornerRadius = 10,
                .fill = Color::textBackground,
                .stroke = isFocused ? Color::accent.withOpacity(0.6)
                                    : Color::secondaryLabel.withOpacity(0.25),
                .lineWidth = isFocused ? 1.5 : 1,
            }))
            .padding({.horizontal = 20, .top = 16});
    const View results =
        picker->suggestions().empty() ? emptyState(picker, onPick) : suggestionList(picker, onPick);

    return VStack{
        {.spacing = 0, .alignment = Alignment::leading},
        header(kind, onCancel),
        Divider(),
        searchBox,
        results.padding({.top = 12})
            .frame(
                {.maxWidth = ui::infinity, .maxHeight = ui::infinity, .alignment = Alignment::top}),
        statusLine(picker),
    }
        .frame({.width = 480, .height = 460})
        .background(RoundedRectangle({.cornerRadius = 10, .fill = Color::windowBackground}))
        .accessibility({.role = ui::Accessibility::Role::dialog,
            .label = std::string(appearance(kind).title)});
}

} // namespace velmaro
