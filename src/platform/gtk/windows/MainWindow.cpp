#include "platform/gtk/windows/MainWindow.h"

#include "platform/appkit/NSWindowDelegate.h"
#include "platform/appkit/NSWindowDescription.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/ui/Pictures.h"
#include "platform/gtk/windows/GtkScreen.h"
#include "platform/gtk/windows/PanelFrame.h"
#include "platform/gtk/windows/X11Window.h"

#include <cmath>
#include <gdkmm/texture.h>
#include <gtkmm/headerbar.h>

namespace gtk {

namespace {

int whole(double points)
{
    return static_cast<int>(std::lround(points));
}

// Task lists show this icon also where the program is not installed and the desktop knows no icon
// of its name.
void showIcon(Gdk::Surface& surface)
{
    const auto icon = std::dynamic_pointer_cast<Gdk::Texture>(applicationIcon());
    if (!icon)
        return;
    GList list{.data = icon->gobj(), .next = nullptr, .prev = nullptr};
    gdk_toplevel_set_icon_list(GDK_TOPLEVEL(surface.gobj()), &list);
}

} // namespace

class MainWindow::ContentView final : public platform::NSView {
public:
    explicit ContentView(MainWindow& window)
        : window_(window)
    {
    }

    platform::NSWindow* window() const override { return &window_; }
    platform::NSRect bounds() const override
    {
        const auto& widget = window_.content_.widget();
        return {{},
            {static_cast<double>(widget.get_width()), static_cast<double>(widget.get_height())}};
    }

private:
    MainWindow& window_;
};

// Tells of the window manager's requests to close the window of `surface`, all of them: the toolkit
// drops those that come while something modal, such as the print panel, is in front of the window.
class MainWindow::CloseRequests {
public:
    // The toolkit's handler comes before any other and ends the signal, so only a hook sees them.
    CloseRequests(GdkSurface* surface, std::function<void()> requested)
        : surface_(surface)
        , requested_(std::move(requested))
        , hook_(g_signal_add_emission_hook(eventSignal(), 0, receive, this, nullptr))
    {
    }

    ~CloseRequests() { g_signal_remove_emission_hook(eventSignal(), hook_); }

    CloseRequests(const CloseRequests&) = delete;
    CloseRequests& operator=(const CloseRequests&) = delete;

private:
    static guint eventSignal() { return g_signal_lookup("event", GDK_TYPE_SURFACE); }

    static gboolean receive(GSignalInvocationHint*, guint, const GValue* arguments, gpointer data)
    {
        const auto* self = static_cast<CloseRequests*>(data);
        auto* event = static_cast<GdkEvent*>(g_value_get_pointer(arguments + 1));
        if (g_value_peek_pointer(arguments) == self->surface_
            && gdk_event_get_event_type(event) == GDK_DELETE)
            self->requested_();
        return TRUE; // goes on
    }

    GdkSurface* surface_; // only compared
    std::function<void()> requested_;
    gulong hook_;
};

MainWindow::MainWindow(const ui::Scene& scene)
    : MainWindow(scene.content())
{
    window_->set_title(scene.title);
    window_->set_show_menubar();
    if (scene.toolbarStyle == ui::WindowToolbarStyle::unified) {
        auto& bar = *Gtk::make_managed<Gtk::HeaderBar>();
        bar.pack_start(content_.toolbar().leading);
        bar.pack_end(content_.toolbar().trailing);
        window_->set_titlebar(bar);
    }
    window_->set_child(content_.widget());
}

MainWindow::MainWindow(const platform::NSWindowDescription& description)
    : MainWindow(description.content)
{
    panelFrame_ = std::make_unique<PanelFrame>(*window_, content_.widget(), description);
    frame_.size = description.contentSize;
    // The toolkit tells the window manager once more that a window has one size only, and forgets
    // its place over that.
    window_->signal_map().connect(sigc::mem_fun(*this, &MainWindow::moveToFrame));
}

MainWindow::MainWindow(ui::View content)
    : content_(std::move(content))
    , contentView_(std::make_shared<ContentView>(*this))
{
    setPlatformWindow(*window_, this);
    window_->signal_realize().connect(sigc::mem_fun(*this, &MainWindow::watchSurface));
    window_->signal_close_request().connect(
        [this] {
            close();
            return true;
        },
        false);
}

MainWindow::~MainWindow()
{
    setPlatformWindow(*window_, nullptr);
    panelFrame_.reset();
    window_->unset_child();
}

bool MainWindow::isVisible() const
{
    if (!window_->get_mapped())
        return false;
    return !(gdk_toplevel_get_state(GDK_TOPLEVEL(surface())) & GDK_TOPLEVEL_STATE_MINIMIZED);
}

platform::NSScreen* MainWindow::screen() const
{
    return window_->get_mapped() ? GtkScreen::of(surface()) : nullptr;
}

platform::NSRect MainWindow::frame() const
{
    if (!window_->get_mapped())
        return frame_;
    const auto* first = GtkScreen::first();
    if (const auto frame = X11Window::outerFrame(*window_); frame && first)
        return fromDesktop(*frame, first->geometry());

    // Only the size is known; the place is the one asked for.
    return {frame_.origin,
        {static_cast<double>(window_->get_width()), static_cast<double>(window_->get_height())}};
}

void MainWindow::setFrame(const platform::NSRect& frame, bool, bool)
{
    frame_ = frame;
    window_->set_default_size(whole(frame.size.width), whole(frame.size.height));
    gtk_widget_realize(GTK_WIDGET(window_->gobj())); // only then is there something to move
    moveToFrame();
}

void MainWindow::moveToFrame()
{
    const auto* first = GtkScreen::first();
    if (!first)
        return;
    const auto place = toDesktop(frame_, first->geometry());
    X11Window::move(*window_, place.get_x(), place.get_y());
}

void MainWindow::setMinSize(platform::NSSize size)
{
    minSize_ = size;
    window_->set_size_request(whole(size.width), whole(size.height));
}

void MainWindow::makeKeyAndOrderFront()
{
    if (!isClosed_)
        window_->present();
}

void MainWindow::close()
{
    if (isClosed_)
        return;
    const auto self = shared_from_this(); // the application lets go of the window
    isClosed_ = true;
    if (delegate_)
        delegate_->windowWillClose(*this);
    window_->set_visible(false);
    signalClosed_.emit();
}

GdkSurface* MainWindow::surface() const
{
    return gtk_native_get_surface(GTK_NATIVE(window_->gobj()));
}

void MainWindow::watchSurface()
{
    const auto surface = window_->get_surface();
    showIcon(*surface);
    surface->signal_layout().connect([this](int, int) { checkExtent(); });
    surface->signal_enter_monitor().connect([this](const auto&) { checkExtent(); }, true);
    X11Window::onConfigured(*window_, [this] { checkExtent(); });
    closeRequests_ = std::make_unique<CloseRequests>(surface->gobj(), [this] { close(); });
}

// A window that has come to another screen counts as resized, since it is measured against that one
// from then on. Observers may resize the window once more, so they are told when the toolkit has
// laid it out.
void MainWindow::checkExtent()
{
    if (isCheckQueued_)
        return;
    isCheckQueued_ = true;
    platform::DispatchQueue::main().async([weakSelf = weak_from_this()] {
        const auto self = std::static_pointer_cast<MainWindow>(weakSelf.lock());
        if (!self || self->isClosed_)
            return;
        self->isCheckQueued_ = false;
        const auto extent = self->currentExtent();
        if (std::exchange(self->extent_, extent) != extent)
            platform::NotificationCenter::defaultCenter().post(didResizeNotification, self.get());
    });
}

MainWindow::Extent MainWindow::currentExtent() const
{
    const auto* screen = window_->get_mapped() ? GtkScreen::of(surface()) : nullptr;
    return {
        .width = gdk_surface_get_width(surface()),
        .height = gdk_surface_get_height(surface()),
        .screen = screen ? screen->geometry() : Gdk::Rectangle(),
    };
}

} // namespace gtk
