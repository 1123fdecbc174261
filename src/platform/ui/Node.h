#pragma once

#include "platform/appkit/NSView.h"
#include "platform/foundation/URL.h"
#include "platform/ui/Options.h"
#include "platform/ui/View.h"

#include <string>
#include <tuple>
#include <typeindex>
#include <vector>

// What views are made of: plain records, one type for each kind. The reconciler knows the first
// three kinds and treats all others alike; the renderer knows all others and never sees the first
// two.

namespace ui {

enum class Kind {
    component,
    sequence,
    hosted,
    group,
    frame,
    padding,
    horizontalStack,
    verticalStack,
    layers,
    fill,
    text,
    symbol,
    applicationIcon,
    progressBar,
    spinner,
    spacer,
    divider,
    roundedRectangle,
    button,
    textField,
    scrollArea,
    sheet,
    toolbar,
};

// One record of a description. It is not changed any more once it is mounted.
struct Node {
    explicit Node(Kind kind, std::vector<View> children = {})
        : kind(kind)
        , children(std::move(children))
    {
    }
    virtual ~Node() = default;

    // Tells apart two nodes of one kind that must not take each other's place.
    virtual std::type_index type() const { return typeid(void); }

    Kind kind;
    std::vector<View> children;
};

// A view with a body of its own.
struct ComponentNode : Node {
    ComponentNode()
        : Node(Kind::component)
    {
    }

    virtual View body() const = 0;

    // The same component for another place.
    virtual std::shared_ptr<ComponentNode> copy() const = 0;

    // Makes the component's state, or takes over that of `previous`, which is of the same type.
    virtual void mount() = 0;
    virtual void adopt(const ComponentNode& previous) = 0;

    // Whether the component is known to describe the same as `previous` while no field that it
    // reads has changed: only where its type can be compared.
    virtual bool isEqual(const ComponentNode& previous) const = 0;

    bool isMounted = false; // it has a place, or had one
};

// Children that stand in place of the one view, each under its key.
struct SequenceNode : Node {
    SequenceNode()
        : Node(Kind::sequence)
    {
    }

    std::vector<std::string> keys; // one a child
};

// A native view's place.
struct HostedNode : Node {
    HostedNode()
        : Node(Kind::hosted)
    {
    }

    // Whether the native view is too costly to be made before the window's first frame is on the
    // screen.
    virtual bool waitsForFirstFrame() const = 0;

    virtual std::shared_ptr<void> makeCoordinator() const = 0;
    virtual std::shared_ptr<platform::NSView> makeNSView(void* coordinator) const = 0;
    virtual void updateNSView(platform::NSView& view, void* coordinator) const = 0;
};

// One child with the modifiers that do not change its layout.
struct GroupNode : Node {
    explicit GroupNode(View child)
        : Node(Kind::group, {std::move(child)})
    {
    }

    double opacity = 1;
    bool allowsHitTesting = true;
    Transition transition;
    std::string help;
    Accessibility accessibility;
    bool isScrolledToVisible = false;
    std::string dragPayload; // empty: cannot be dragged
    std::function<void(bool)> onHover;
    std::function<void()> onTapGesture;
    std::function<bool(const std::vector<std::string>&)> onDrop;
    std::function<void(const platform::URL&)> onOpenURL;
};

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
    ApplicationIconNode()
        : Node(Kind::applicationIcon)
    {
    }
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

// Its two children stand in the window's bar, at its beginning and its end.
struct ToolbarNode : Node {
    ToolbarNode(View leading, View trailing)
        : Node(Kind::toolbar, {std::move(leading), std::move(trailing)})
    {
    }
};

// The node of one component type.
template <Component T> struct ComponentNodeOf final : ComponentNode {
    explicit ComponentNodeOf(T component)
        : component(std::move(component))
    {
    }

    std::type_index type() const override { return typeid(T); }
    View body() const override { return component.body(); }

    std::shared_ptr<ComponentNode> copy() const override
    {
        return std::make_shared<ComponentNodeOf>(component);
    }

    void mount() override
    {
        if constexpr (requires { component.state(); })
            std::apply([](auto&... states) { (states.mount(), ...); }, component.state());
    }

    void adopt(const ComponentNode& previous) override
    {
        if constexpr (requires { component.state(); })
            adoptStates(component.state(), const_cast<T&>(componentOf(previous)).state());
    }

    bool isEqual(const ComponentNode& previous) const override
    {
        if constexpr (std::equality_comparable<T>)
            return component == componentOf(previous);
        return false;
    }

    T component;

private:
    static const T& componentOf(const ComponentNode& node)
    {
        return static_cast<const ComponentNodeOf&>(node).component;
    }

    template <class... States>
    static void adoptStates(std::tuple<States&...> states, std::tuple<States&...> previous)
    {
        [&]<std::size_t... index>(std::index_sequence<index...>)
        {
            (std::get<index>(states).adopt(std::get<index>(previous)), ...);
        }
        (std::index_sequence_for<States...>());
    }
};

// The node of one host type.
template <NSViewRepresentable T> struct HostedNodeOf final : HostedNode {
    explicit HostedNodeOf(T host)
        : host(std::move(host))
    {
    }

    std::type_index type() const override { return typeid(T); }

    bool waitsForFirstFrame() const override
    {
        if constexpr (requires { T::waitsForFirstFrame; })
            return T::waitsForFirstFrame;
        return false;
    }

    std::shared_ptr<void> makeCoordinator() const override { return host.makeCoordinator(); }

    std::shared_ptr<platform::NSView> makeNSView(void* coordinator) const override
    {
        return host.makeNSView(*static_cast<typename T::Coordinator*>(coordinator));
    }

    void updateNSView(platform::NSView& view, void* coordinator) const override
    {
        host.updateNSView(static_cast<typename T::NSViewType&>(view),
            *static_cast<typename T::Coordinator*>(coordinator));
    }

    T host;
};

template <Component T>
View::View(T component)
    : node_(std::make_shared<ComponentNodeOf<T>>(std::move(component)))
{
}

template <NSViewRepresentable T>
View::View(T host)
    : node_(std::make_shared<HostedNodeOf<T>>(std::move(host)))
{
}

} // namespace ui
