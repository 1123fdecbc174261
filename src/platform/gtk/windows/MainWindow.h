#pragma once

#include "platform/appkit/NSView.h"
#include "platform/appkit/NSWindow.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/gtk/ui/WindowContent.h"
#include "platform/ui/Scene.h"

#include <gtkmm/applicationwindow.h>
#include <sigc++/signal.h>

namespace platform {
struct NSWindowDescription;
}

namespace gtk {

class PanelFrame;

// A window of the application: of its scene, or one beside those. It is made hidden.
class MainWindow final : public platform::NSWindow {
public:
    explicit MainWindow(const ui::Scene& scene);
    explicit MainWindow(const platform::NSWindowDescription& description);
    ~MainWindow() override;

    // The user or the program closes the window, which is still whole then.
    sigc::signal<void()>& signalClosed() { return signalClosed_; }

    Gtk::ApplicationWindow& native() { return *window_; }

    // Its views.
    ui::Mount& mount() { return content_.mount(); }

    bool isKeyWindow() const { return window_->is_active(); }

    platform::NSScreen* screen() const override;
    bool isVisible() const override;
    platform::NSRect frame() const override;
    void setFrame(const platform::NSRect& frame, bool display, bool animate) override;
    platform::NSSize minSize() const override { return minSize_; }
    void setMinSize(platform::NSSize size) override;
    bool isFullScreen() const override { return window_->is_fullscreen(); }

    bool canBecomeMainWindow() const override { return !isClosed_; }
    platform::NSView* contentView() const override { return contentView_.get(); }
    void setDelegate(platform::NSWindowDelegate* delegate) override { delegate_ = delegate; }
    void makeKeyAndOrderFront() override;
    void close() override;

private:
    class CloseRequests;
    class ContentView;

    // How large the window is, and what it is measured against.
    struct Extent {
        int width = 0;
        int height = 0;
        Gdk::Rectangle screen; // empty when the window is on no screen

        bool operator==(const Extent&) const = default;
    };

    explicit MainWindow(ui::View content);

    void moveToFrame();
    GdkSurface* surface() const; // null until the window is realized
    void watchSurface();
    void checkExtent();
    Extent currentExtent() const;

    std::unique_ptr<Gtk::ApplicationWindow> window_ = std::make_unique<Gtk::ApplicationWindow>();
    WindowContent content_;
    std::unique_ptr<PanelFrame> panelFrame_; // null in a window of the scene
    std::unique_ptr<CloseRequests> closeRequests_; // null until the window is realized
    std::shared_ptr<platform::NSView> contentView_;

    platform::NSWindowDelegate* delegate_ = nullptr;
    platform::NSRect frame_; // as last asked for
    platform::NSSize minSize_;
    bool isClosed_ = false;
    Extent extent_; // as last told
    bool isCheckQueued_ = false;
    sigc::signal<void()> signalClosed_;
};

} // namespace gtk
