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

struct ApplicationIconNode : Node {
    explicit ApplicationIconNode(ApplicationIconOptions options)
        : Node(Kind::applicationIcon)
        , options(options)
    {
    }

    ApplicationIconOptions options;
};

struct ProgressBarNode : Node {
    explicit ProgressBarNode(double fraction)
        : Node(Kind::progressBar)
        , fraction(fraction)
    {
    }

    double fraction; // 0 to 1
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
    ButtonNode(ButtonOptions options, View label, std::function<void()> action)
        : Node(Kind::button, {std::move(label)})
        , options(std::move(options))
        , action(std::move(action))
    {
    }

    ButtonOptions options;
    std::function<void()> action;
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
