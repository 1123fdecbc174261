#pragma once

#include "platform/ui/Node.h"
#include "platform/ui/Options.h"

// The records that only renderers know: one for each kind of view that shows something or arranges
// others.

namespace ui {

struct FrameNode : Node {
    FrameNode(View child, FrameOptions options)
        : Node(Kind::frame, {std::move(child)})
        , options(options)
    {
    }

    FrameOptions options;
};

struct PaddingNode : Node {
    PaddingNode(View child, PaddingOptions options)
        : Node(Kind::padding, {std::move(child)})
        , options(options)
    {
    }

    PaddingOptions options;
};

// Children in a row or a column.
struct StackNode : Node {
    StackNode(Axis axis, StackOptions options, std::vector<View> children)
        : Node(axis == Axis::horizontal ? Kind::horizontalStack : Kind::verticalStack,
            std::move(children))
        , options(options)
    {
    }

    StackOptions options;
};

// Children on top of each other, the last one in front.
struct LayersNode : Node {
    LayersNode(std::vector<View> children, Alignment alignment, std::size_t base)
        : Node(Kind::layers, std::move(children))
        , alignment(alignment)
        , base(base)
    {
    }

    static constexpr std::size_t allChildren = static_cast<std::size_t>(-1);

    Alignment alignment;
    std::size_t base; // the child whose size counts, or `allChildren`
};

struct FillNode : Node {
    explicit FillNode(Color color)
        : Node(Kind::fill)
        , color(color)
    {
    }

    Color color;
};

struct LinearGradientNode : Node {
    explicit LinearGradientNode(GradientOptions options)
        : Node(Kind::linearGradient)
        , options(options)
    {
    }

    GradientOptions options;
};

struct TextNode : Node {
    TextNode(std::string text, TextOptions options)
        : Node(Kind::text)
        , text(std::move(text))
        , options(options)
    {
    }

    std::string text;
    TextOptions options;
};

// One of the application's symbols, as large as text in its font.
struct SymbolNode : Node {
    SymbolNode(std::string name, SymbolOptions options)
        : Node(Kind::symbol)
        , name(std::move(name))
        , options(options)
    {
    }

    std::string name;
    SymbolOptions options;
};

// A picture of the desktop's.
struct IconNode : Node {
    explicit IconNode(std::string name)
        : Node(Kind::icon)
        , name(std::move(name))
    {
    }

    std::string name;
};

struct ApplicationIconNode : Node {
    explicit ApplicationIconNode(ApplicationIconOptions options)
        : Node(Kind::applicationIcon)
        , options(options)
    {
    }

    ApplicationIconOptions options;
};

struct ProgressBarNode : Node {
    ProgressBarNode(std::optional<double> fraction, ProgressBarOptions options)
        : Node(Kind::progressBar)
        , fraction(fraction)
        , options(std::move(options))
    {
    }

    std::optional<double> fraction; // 0 to 1; absent: there is no telling
    ProgressBarOptions options;
};

// A small turning wheel.
struct SpinnerNode : Node {
    SpinnerNode()
        : Node(Kind::spinner)
    {
    }
};

// Room that pushes its neighbours apart.
struct SpacerNode : Node {
    explicit SpacerNode(double minLength)
        : Node(Kind::spacer)
        , minLength(minLength)
    {
    }

    double minLength;
};

// A thin line across.
struct DividerNode : Node {
    DividerNode()
        : Node(Kind::divider)
    {
    }
};

struct RoundedRectangleNode : Node {
    explicit RoundedRectangleNode(ShapeOptions options)
        : Node(Kind::roundedRectangle)
        , options(options)
    {
    }

    ShapeOptions options;
};

struct ButtonNode : Node {
    // `label` is one view, or absent where the button shows its title.
    ButtonNode(ButtonOptions options, std::vector<View> label, std::function<void()> action)
        : Node(Kind::button, std::move(label))
        , options(std::move(options))
        , action(std::move(action))
    {
    }

    ButtonOptions options;
    std::function<void()> action;
};

struct ToggleNode : Node {
    ToggleNode(std::string title, Binding<bool> isOn)
        : Node(Kind::toggle)
        , title(std::move(title))
        , isOn(std::move(isOn))
    {
    }

    std::string title;
    Binding<bool> isOn;
};

struct TextAreaNode : Node {
    TextAreaNode(std::string name, std::string text)
        : Node(Kind::textArea)
        , name(std::move(name))
        , text(std::move(text))
    {
    }

    std::string name; // for screen readers
    std::string text;
};

struct TextFieldNode : Node {
    TextFieldNode(TextFieldOptions options, Binding<std::string> text)
        : Node(Kind::textField)
        , options(std::move(options))
        , text(std::move(text))
    {
    }

    TextFieldOptions options;
    Binding<std::string> text;
};

struct ScrollAreaNode : Node {
    ScrollAreaNode(ScrollOptions options, View content)
        : Node(Kind::scrollArea, {std::move(content)})
        , options(options)
    {
    }

    ScrollOptions options;
};

struct SheetNode : Node {
    SheetNode(View content, std::function<void()> onDismiss)
        : Node(Kind::sheet, {std::move(content)})
        , onDismiss(std::move(onDismiss))
    {
    }

    std::function<void()> onDismiss;
};

struct PopoverNode : Node {
    PopoverNode(View content, std::function<void()> onDismiss)
        : Node(Kind::popover, {std::move(content)})
        , onDismiss(std::move(onDismiss))
    {
    }

    std::function<void()> onDismiss;
};

// Its two children stand in the window's bar, at its beginning and its end.
struct ToolbarNode : Node {
    ToolbarNode(View leading, View trailing)
        : Node(Kind::toolbar, {std::move(leading), std::move(trailing)})
    {
    }
};

} // namespace ui
