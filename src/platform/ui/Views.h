#pragma once

#include "platform/ui/State.h"
#include "platform/ui/ViewNodes.h"

// The catalogue of views: everything that a body can be built of. Options come first in the braces,
// then the children.

namespace ui {

// A row, its children centred vertically.
struct HStack : View {
    template <class... Children>
    HStack(StackOptions options, Children&&... children)
        : View(std::make_shared<StackNode>(Axis::horizontal, options,
            std::vector<View>{View(std::forward<Children>(children))...}))
    {
    }
};

// A column, its children centred horizontally.
struct VStack : View {
    template <class... Children>
    VStack(StackOptions options, Children&&... children)
        : View(std::make_shared<StackNode>(
            Axis::vertical, options, std::vector<View>{View(std::forward<Children>(children))...}))
    {
    }
};

// Children on top of each other, the last one in front.
struct ZStack : View {
    template <class... Children>
    ZStack(LayersOptions options, Children&&... children)
        : View(std::make_shared<LayersNode>(
            std::vector<View>{View(std::forward<Children>(children))...}, options.alignment,
            LayersNode::allChildren))
    {
    }
};

// An area of one colour that takes all the room there is.
struct Fill : View {
    explicit Fill(Color color)
        : View(std::make_shared<FillNode>(color))
    {
    }
};

// An area of two colours that takes all the room there is.
struct LinearGradient : View {
    explicit LinearGradient(GradientOptions options)
        : View(std::make_shared<LinearGradientNode>(options))
    {
    }
};

struct Text : View {
    explicit Text(std::string text, TextOptions options = {})
        : View(std::make_shared<TextNode>(std::move(text), options))
    {
    }
};

// One of the application's own symbols, by its name.
struct Symbol : View {
    explicit Symbol(std::string name, SymbolOptions options = {})
        : View(std::make_shared<SymbolNode>(std::move(name), options))
    {
    }
};

// A picture of the desktop's: one of its icon theme by its name, or whatever else it knows by a
// text, such as a program's own. A text that it does not know leaves the place empty.
struct Icon : View {
    explicit Icon(std::string name)
        : View(std::make_shared<IconNode>(std::move(name)))
    {
    }
};

// The application's own picture, scaled to fit.
struct ApplicationIcon : View {
    explicit ApplicationIcon(ApplicationIconOptions options = {})
        : View(std::make_shared<ApplicationIconNode>(options))
    {
    }
};

// A line or bar that is filled to `fraction`, from 0 to 1. Without one it shows that something goes
// on, and a step of it at each redraw.
struct ProgressBar : View {
    explicit ProgressBar(std::optional<double> fraction, ProgressBarOptions options = {})
        : View(std::make_shared<ProgressBarNode>(fraction, std::move(options)))
    {
    }
};

// A small turning wheel, for work whose end is not known.
struct Spinner : View {
    Spinner()
        : View(std::make_shared<SpinnerNode>())
    {
    }
};

// Room in a stack that takes what is left.
struct Spacer : View {
    explicit Spacer(double minLength = 0)
        : View(std::make_shared<SpacerNode>(minLength))
    {
    }
};

// A thin line across all the width there is.
struct Divider : View {
    Divider()
        : View(std::make_shared<DividerNode>())
    {
    }
};

// An area with round corners that takes all the room there is.
struct RoundedRectangle : View {
    explicit RoundedRectangle(ShapeOptions options)
        : View(std::make_shared<RoundedRectangleNode>(options))
    {
    }
};

struct Button : View {
    Button(ButtonOptions options, View label, std::function<void()> action)
        : View(std::make_shared<ButtonNode>(
            std::move(options), std::vector{std::move(label)}, std::move(action)))
    {
    }

    // A button as the desktop's dialogs have them, which shows its title.
    Button(ButtonOptions options, std::function<void()> action)
        : View(std::make_shared<ButtonNode>(
            std::move(options), std::vector<View>(), std::move(action)))
    {
    }
};

// A box with a title, to be checked and unchecked.
struct Toggle : View {
    Toggle(std::string title, Binding<bool> isOn)
        : View(std::make_shared<ToggleNode>(std::move(title), std::move(isOn)))
    {
    }
};

// A text of any length to be read, in a frame where it scrolls. Screen readers call it `name`.
struct TextArea : View {
    TextArea(std::string name, std::string text)
        : View(std::make_shared<TextAreaNode>(std::move(name), std::move(text)))
    {
    }
};

// One line that can be edited, without a border of its own.
struct TextField : View {
    TextField(TextFieldOptions options, Binding<std::string> text)
        : View(std::make_shared<TextFieldNode>(std::move(options), std::move(text)))
    {
    }
};

// Shows a part of a view that is larger than the room there is.
struct ScrollArea : View {
    ScrollArea(ScrollOptions options, View content)
        : View(std::make_shared<ScrollAreaNode>(options, std::move(content)))
    {
    }
};

// One view for each element. `key(element)` is the text that an element is known by: a view follows
// its key, with its state, wherever the order takes it. Two elements with one key are told apart by
// their order.
template <class Elements, class Key, class Content>
View ForEach(const Elements& elements, Key key, Content content)
{
    auto sequence = std::make_shared<SequenceNode>();
    for (const auto& element : elements) {
        sequence->keys.push_back(std::invoke(key, element));
        sequence->children.push_back(View(content(element)));
    }
    return View(std::move(sequence));
}

} // namespace ui
