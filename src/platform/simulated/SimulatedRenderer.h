#pragma once

#include "platform/ui/Widget.h"

#include <functional>
#include <vector>

namespace simulated {

// Makes the widgets of one window and counts what is asked of them, so that a test can tell what
// was redrawn.
class SimulatedRenderer final : public ui::Renderer {
public:
    struct Counts {
        int made = 0;
        int applied = 0;
        int placed = 0; // moves included
        int removed = 0;

        bool operator==(const Counts&) const = default;
    };

    std::unique_ptr<ui::Widget> makeWidget(const ui::Node& node) override;
    std::unique_ptr<ui::Widget> makeHost(ui::HostedView& hosted) override;

    // Calls `action` once the window's first frame is on the screen; now when it is already.
    void whenFirstFrameIsShown(std::function<void()> action);
    void showFirstFrame();

    Counts counts;

private:
    bool isFirstFrameShown_ = false;
    std::vector<std::function<void()>> waiting_;
};

} // namespace simulated
