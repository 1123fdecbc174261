#pragma once

#include "platform/gtk/ui/Container.h"

#include <functional>
#include <memory>

namespace gtk {

// A panel over the window's content, which is dimmed and out of reach meanwhile. The focus stays in
// the panel and goes back to where it was.
class SheetWidget final : public Container {
public:
    SheetWidget();
    ~SheetWidget() override;

    void apply(const ui::Node& node) override;
    void place(ui::Widget& child, std::size_t index) override;

private:
    void takeFocus();
    void returnFocus();
    bool keepFocusInside(guint key);

    std::function<void()> onDismiss_;
    GWeakRef previousFocus_;
};

} // namespace gtk
