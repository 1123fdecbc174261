#pragma once

#include "platform/appkit/NSWindow.h"
#include "platform/simulated/SimulatedRenderer.h"
#include "platform/simulated/SimulatedView.h"
#include "platform/simulated/SimulatedWidget.h"
#include "platform/ui/Mount.h"

#include <optional>
#include <string>

namespace simulated {

class SimulatedPlatform;
class SimulatedWebView;

// A window on a simulated screen. It opens with 800 × 600 points in the screen's corner.
class SimulatedWindow final : public platform::NSWindow {
public:
    struct Options {
        std::string title = {};
        bool isOfScene = false; // else it does not keep the program alive
        bool canBecomeMainWindow = true;
        bool hasContentView = true;
        std::shared_ptr<SimulatedWebView> offscreenView = {}; // for a window that no screen shows
        bool isVisible = true;
    };

    SimulatedWindow(SimulatedPlatform& platform, Options options);

    // Fills the window with views; its first frame is shown when the event is over.
    void show(ui::View content);

    // The views, as widgets that a test can read.
    const SimulatedWidget& content() const { return root_; }
    ui::Mount& mount() { return *mount_; }
    std::shared_ptr<const ui::Published<ui::FocusedValues>> focusedValues() const
    {
        return mount_ ? mount_->focusedValues() : nullptr;
    }
    SimulatedRenderer& renderer() { return renderer_; }
    const std::string& title() const { return options_.title; }
    bool isOfScene() const { return options_.isOfScene; }

    platform::NSScreen* screen() const override;
    bool isVisible() const override { return isVisible_; }
    platform::NSRect frame() const override { return frame_; }
    void setFrame(const platform::NSRect& frame, bool display, bool animate) override;
    platform::NSSize minSize() const override { return minSize_; }
    void setMinSize(platform::NSSize size) override { minSize_ = size; }
    bool isFullScreen() const override { return isFullScreen_; }
    bool canBecomeMainWindow() const override { return options_.canBecomeMainWindow; }
    platform::NSView* contentView() const override;
    void setDelegate(platform::NSWindowDelegate* delegate) override { delegate_ = delegate; }
    void makeKeyAndOrderFront() override;
    void close() override;

    // The user drags an edge: the upper left corner stays, and the minimum size holds.
    void simulateUserResize(platform::NSSize size);

    // The desktop gives the window another place or size, say on another screen, and tells of it.
    void simulateFrame(const platform::NSRect& frame);

    void simulateFullScreen(bool isFullScreen) { isFullScreen_ = isFullScreen; }
    void simulateMiniaturize() { isVisible_ = false; }

private:
    SimulatedPlatform& platform_;
    Options options_;
    SimulatedRenderer renderer_;
    SimulatedWidget root_;
    mutable SimulatedView contentView_;
    std::optional<ui::Mount> mount_; // goes before what it shows itself in
    platform::NSRect frame_{{0, 0}, {800, 600}};
    platform::NSSize minSize_;
    bool isFullScreen_ = false;
    bool isVisible_ = true;
    platform::NSWindowDelegate* delegate_ = nullptr;
};

} // namespace simulated
