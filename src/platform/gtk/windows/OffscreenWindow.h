#pragma once

#include "platform/appkit/NSWindowDelegate.h"
#include "platform/gtk/webkit/OffscreenWebView.h"

#include <utility>

namespace gtk {

// A window that holds a view which is only printed. The engine also prints views that are in no
// window of the toolkit, so this one has no such window: nothing can come onto a screen by mistake.
class OffscreenWindow final : public platform::NSWindow {
public:
    OffscreenWindow(const platform::NSRect& frame, std::shared_ptr<OffscreenWebView> contentView)
        : frame_(frame)
        , contentView_(std::move(contentView))
    {
        contentView_->setWindow(this);
    }
    ~OffscreenWindow() override { close(); }

    platform::NSScreen* screen() const override { return nullptr; }
    bool isVisible() const override { return false; }
    platform::NSRect frame() const override { return frame_; }
    void setFrame(const platform::NSRect& frame, bool, bool) override { frame_ = frame; }
    platform::NSSize minSize() const override { return minSize_; }
    void setMinSize(platform::NSSize size) override { minSize_ = size; }
    bool isFullScreen() const override { return false; }

    bool canBecomeMainWindow() const override { return false; }
    platform::NSView* contentView() const override { return contentView_.get(); }
    void setDelegate(platform::NSWindowDelegate* delegate) override { delegate_ = delegate; }
    void makeKeyAndOrderFront() override { }
    void close() override
    {
        const auto view = std::exchange(contentView_, nullptr);
        if (!view)
            return;
        if (delegate_)
            delegate_->windowWillClose(*this);
        view->setWindow(nullptr);
    }

private:
    platform::NSRect frame_;
    platform::NSSize minSize_;
    platform::NSWindowDelegate* delegate_ = nullptr;
    std::shared_ptr<OffscreenWebView> contentView_; // null once the window is closed
};

} // namespace gtk
