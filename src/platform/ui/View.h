#pragma once

#include "platform/ui/Accessibility.h"
#include "platform/ui/FocusedValues.h"
#include "platform/ui/Layout.h"
#include "platform/ui/Transition.h"

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace platform {
class URL;
}

namespace ui {

struct Node;
class View;

// A view made of other views: any type with a body. The body reads models and describes; it writes
// nothing.
template <class T>
concept Component = requires(const T& component)
{
    {
        component.body()
        } -> std::convertible_to<View>;
};

// A view that stands for a native one. It is asked for a coordinator and then for the native view
// when it is first shown, and to update that at every later redraw. Where it declares
// `waitsForFirstFrame` to be true, it is made after the window's first frame is on the screen.
template <class T>
concept NSViewRepresentable = requires(const T& host, typename T::Coordinator& coordinator)
{
    {
        host.makeCoordinator()
        } -> std::convertible_to<std::shared_ptr<typename T::Coordinator>>;
    {
        *host.makeNSView(coordinator)
        } -> std::convertible_to<typename T::NSViewType&>;
    host.updateNSView(std::declval<typename T::NSViewType&>(), coordinator);
};

// A description of what is to be seen: a small value, cheap to copy, made afresh at every redraw.
// Main thread only. Modifiers return a new description around this one and so apply in the order
// written, inside first.
class View {
public:
    // Nothing to be seen.
    View() = default;

    View(std::shared_ptr<Node> node)
        : node_(std::move(node))
    {
    }

    // These two are defined in `Node.h`, which all code that builds views includes through
    // `Views.h`.
    template <Component T> View(T component);
    template <NSViewRepresentable T> View(T host);

    // Makes this another view than one in the same place with another key: state is not taken over.
    View id(std::string key) const;

    View frame(FrameOptions options) const;
    View padding(PaddingOptions options) const;

    // Another view behind or in front of this one, as large as this one.
    View background(View behind) const;
    View overlay(View inFront, Alignment alignment = Alignment::center) const;

    // 0 (invisible) to 1. A native view that has never been anything but invisible is not made.
    View opacity(double opacity) const;

    // Whether clicks, keys and drops reach this view and what is in it.
    View allowsHitTesting(bool isAllowed) const;

    View transition(Transition transition) const;

    // What the view is for, in a few words: shown as a tooltip and read out by screen readers.
    View help(std::string text) const;

    // What the view is to a screen reader.
    View accessibility(Accessibility accessibility) const;

    // The pointer has entered (true) or left (false) the view.
    View onHover(std::function<void(bool)> action) const;

    // A click anywhere on the view that nothing inside it has taken.
    View onTapGesture(std::function<void()> action) const;

    // A click anywhere on the view with the middle button.
    View onMiddleClick(std::function<void()> action) const;

    // The view can be dragged; it carries `payload`.
    View draggable(std::string payload) const;

    // Texts can be dropped on the view; the action tells whether it takes them.
    View dropDestination(std::function<bool(const std::vector<std::string>&)> action) const;

    // Scrolls the area around the view so that all of it can be seen, each time this becomes true.
    View scrolledToVisible(bool isVisible) const;

    // A modal panel inside the window, over this view, while `content` is something. It holds the
    // keyboard focus and gives it back. Escape and whatever else dismisses it calls `onDismiss`.
    View sheet(View content, std::function<void()> onDismiss) const;

    // A small panel that points at this view while `content` is something. A click beside it,
    // Escape and whatever else dismisses it calls `onDismiss`.
    View popover(View content, std::function<void()> onDismiss) const;

    // Puts `leading` and `trailing` into the window's bar.
    View toolbar(View leading, View trailing) const;

    // Publishes `value` under `Key` for the menus, while this view's window is the focused one. All
    // values of a window are published by one view.
    template <class Key> View focusedSceneValue(std::shared_ptr<typename Key::Value> value) const
    {
        return withFocusedValues([&](FocusedValues& values) { values.set<Key>(std::move(value)); });
    }

    // Called with every address that the window is asked to open.
    View onOpenURL(std::function<void(const platform::URL&)> action) const;

    const std::shared_ptr<Node>& node() const { return node_; }

private:
    View withFocusedValues(const std::function<void(FocusedValues&)>& change) const;

    std::shared_ptr<Node> node_;
};

} // namespace ui
