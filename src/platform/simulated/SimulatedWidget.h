#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/ui/ViewNodes.h"
#include "platform/ui/Widget.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {
class NSWindow;
}

namespace simulated {

class SimulatedRenderer;

// One widget of a tree that a test can read. It fails the test where a toolkit would lose a
// widget's state: when a widget is put into a second parent, or comes back after it was taken away.
class SimulatedWidget : public ui::Widget {
public:
    explicit SimulatedWidget(SimulatedRenderer& renderer);
    ~SimulatedWidget() override;

    SimulatedWidget(const SimulatedWidget&) = delete;
    SimulatedWidget& operator=(const SimulatedWidget&) = delete;

    void apply(const ui::Node& node) override;
    void place(ui::Widget& child, std::size_t index) override;
    void remove(ui::Widget& child, std::shared_ptr<void> owner) override;

    // What the widget shows, when that is of type `T`; null when it is something else.
    template <class T> const T* node() const { return dynamic_cast<const T*>(node_); }

    // The children in order, without those on their way out.
    std::vector<SimulatedWidget*> children() const;

    // This widget and all below it for which `node<T>()` is present, depth first.
    template <class T> std::vector<const SimulatedWidget*> findAll() const;

    // Whether a text that reads `text` is below and can be seen.
    bool showsText(std::string_view text) const;

    // Whether nothing above makes it invisible and it is not on its way out.
    bool isVisible() const;

    const SimulatedWidget* parent() const { return parent_; }

    // The window that the tree stands in; null while this is in no window.
    platform::NSWindow* window() const;

    // The tree from here on: a line a widget, two blanks a level, those on their way out marked
    // "leaving".
    std::string describe() const;

protected:
    friend class SimulatedWindow;

    // One line without indentation.
    virtual std::string describeSelf() const;

    SimulatedRenderer& renderer() const { return renderer_; }
    const platform::Lifetime& lifetime() const { return lifetime_; }

private:
    struct Child {
        SimulatedWidget* widget;
        std::shared_ptr<void> owner; // present while the child is on its way out
    };

    void describe(std::string& text, std::size_t depth) const;
    template <class T> void collect(std::vector<const SimulatedWidget*>& found) const;
    std::size_t listIndex(std::size_t index) const;
    std::vector<Child>::iterator entryOf(const SimulatedWidget& child);
    void letGo(const SimulatedWidget& child);
    bool isLeaving() const;

    SimulatedRenderer& renderer_;
    std::optional<ui::Kind> kind_; // of what was shown first
    const ui::Node* node_ = nullptr; // kept alive, until the next, by the place of this widget
    SimulatedWidget* parent_ = nullptr;
    platform::NSWindow* window_ = nullptr; // of a root
    std::vector<Child> childList_;
    bool wasRemoved_ = false;
    platform::Lifetime lifetime_;
};

template <class T> std::vector<const SimulatedWidget*> SimulatedWidget::findAll() const
{
    std::vector<const SimulatedWidget*> found;
    collect<T>(found);
    return found;
}

template <class T> void SimulatedWidget::collect(std::vector<const SimulatedWidget*>& found) const
{
    if (node<T>())
        found.push_back(this);
    for (const auto* child : children())
        child->collect<T>(found);
}

} // namespace simulated
