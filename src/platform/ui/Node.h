#pragma once

#include "platform/appkit/NSView.h"
#include "platform/foundation/URL.h"
#include "platform/ui/FocusedValues.h"
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
    linearGradient,
    text,
    symbol,
    icon,
    applicationIcon,
    progressBar,
    spinner,
    spacer,
    divider,
    roundedRectangle,
    button,
    toggle,
    textField,
    textArea,
    scrollArea,
    sheet,
    popover,
    toolbar,
};

// One record of a description. All views that describe the same share it, and once it is mounted it
// is not changed any more. Main thread only.
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
    std::function<void()> onMiddleClick;
    std::function<bool(const std::vector<std::string>&)> onDrop;
    std::function<void(const platform::URL&)> onOpenURL;
    FocusedValues focusedValues;
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
