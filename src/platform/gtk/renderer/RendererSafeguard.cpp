#include "platform/gtk/renderer/RendererSafeguard.h"

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSApplication.h"
#include "platform/gtk/foundation/ObjectPointer.h"
#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/Platform.h"

namespace gtk {

using platform::NSAlert;

namespace {

constexpr auto memoryName = "rendering.json";
constexpr auto markerName = "no-page-yet";
constexpr auto answerKey = "usesGraphicsProcessor";
constexpr auto question = "Draw without the graphics processor?";

RendererChoice choose(const GtkUserDefaults& memory, const StartMarker& marker)
{
    RendererFacts facts = {
        .hasGraphicsProcessor = hasGraphicsProcessor(),
        .isChosenInEnvironment = isRendererChosenInEnvironment(),
        .answer = std::nullopt,
    };
    if (facts.hasGraphicsProcessor && !facts.isChosenInEnvironment) {
        if (memory.contains(answerKey))
            facts.answer = memory.boolean(answerKey);
        else
            facts.hasLastStartFailed = marker.isLeftBehind();
    }
    return chooseRenderer(facts);
}

struct NodeRelease {
    void operator()(GskRenderNode* node) const { gsk_render_node_unref(node); }
};
using Node = std::unique_ptr<GskRenderNode, NodeRelease>;

// As it was painted last; painting it anew would ask the engine for more.
Node lastPainted(GtkWidget* widget)
{
    const ObjectPointer<GdkPaintable> picture(gtk_widget_paintable_new(widget));
    auto* snapshot = gtk_snapshot_new();
    gdk_paintable_snapshot(
        picture.get(), snapshot, gtk_widget_get_width(widget), gtk_widget_get_height(widget));
    return Node(gtk_snapshot_free_to_node(snapshot));
}

// The engine makes such a recording even when it has nothing to paint.
bool hasInk(cairo_surface_t* surface)
{
    if (!surface)
        return false;
    if (cairo_surface_get_type(surface) != CAIRO_SURFACE_TYPE_RECORDING)
        return true;
    double x = 0, y = 0, width = 0, height = 0;
    cairo_recording_surface_ink_extents(surface, &x, &y, &width, &height);
    return width > 0 && height > 0;
}

// Pages arrive as textures or as drawings, below whatever the toolkit has put around them.
bool holdsPicture(GskRenderNode* node)
{
    if (!node)
        return false;
    switch (gsk_render_node_get_node_type(node)) {
    case GSK_TEXTURE_NODE:
        return true;
    case GSK_CAIRO_NODE:
        return hasInk(gsk_cairo_node_get_surface(node));
    case GSK_CONTAINER_NODE:
        for (guint index = 0; index < gsk_container_node_get_n_children(node); ++index) {
            if (holdsPicture(gsk_container_node_get_child(node, index)))
                return true;
        }
        return false;
    case GSK_TRANSFORM_NODE:
        return holdsPicture(gsk_transform_node_get_child(node));
    case GSK_CLIP_NODE:
        return holdsPicture(gsk_clip_node_get_child(node));
    case GSK_ROUNDED_CLIP_NODE:
        return holdsPicture(gsk_rounded_clip_node_get_child(node));
    case GSK_OPACITY_NODE:
        return holdsPicture(gsk_opacity_node_get_child(node));
    case GSK_DEBUG_NODE:
        return holdsPicture(gsk_debug_node_get_child(node));
    case GSK_COLOR_NODE: // the ground behind a page
        return false;
    default: // a newer engine's way to show a page
        return true;
    }
}

// Whether what was painted of a web view last is a page, and not the empty area that is there
// before the first one and when the engine's pictures do not arrive.
bool showsPage(GtkWidget* webView)
{
    return holdsPicture(lastPainted(webView).get());
}

std::int64_t paintedFrames(const platform::NSWindow& window)
{
    auto* native = nativeWindow(window);
    auto* clock = native ? gtk_widget_get_frame_clock(GTK_WIDGET(native->gobj())) : nullptr;
    return clock ? gdk_frame_clock_get_frame_counter(clock) + 1 : 0; // the first is number 0
}

PageWatch::Sight look(const platform::NSWindow* window, WebEngine& engine)
{
    if (!window)
        return {};
    auto* page = engine.visiblePage()->page();
    const PageWatch::Sight sight = {
        .isWindowVisible = window->isVisible(),
        .windowFrames = paintedFrames(*window),
        .isPageLoaded = engine.isVisiblePageReady() && page
            && webkit_web_view_get_is_web_process_responsive(page),
        .hasPageFrame = engine.isVisiblePageReady() && page && showsPage(GTK_WIDGET(page)),
    };
    if (sight.isPageLoaded && !sight.hasPageFrame)
        gtk_widget_queue_draw(GTK_WIDGET(page));
    return sight;
}

} // namespace

RendererSafeguard::RendererSafeguard(const StandardPaths& paths, platform::DispatchQueue& queue)
    : queue_(queue)
    , memory_(paths.config / memoryName, queue, platform::NSLog)
    , marker_(paths.cache / markerName)
    , choice_(choose(memory_, marker_))
{
    apply(choice_);
}

RendererSafeguard::~RendererSafeguard() = default;

void RendererSafeguard::begin()
{
    if (choice_ == RendererChoice::hardware)
        marker_.set();
}

void RendererSafeguard::watch(std::function<platform::NSWindow*()> window, WebEngine& engine)
{
    if (choice_ == RendererChoice::softwareOnTrial)
        queue_.asyncWhenIdle([this] { askAfterFailedStart(); });
    if (choice_ != RendererChoice::hardware)
        return;
    guard_ = std::make_unique<PageWatch>(queue_,
        PageWatch::Handlers{
            .look = [window = std::move(window), &engine] { return look(window(), engine); },
            .appeared = [this] { marker_.clear(); },
            .missing = [this] { askAboutMissingPage(); },
        });
}

void RendererSafeguard::end()
{
    // Closing a window that never painted does not prove that drawing works; the marker stays.
    const bool isWindowMissing = guard_ && guard_->isWindowMissing();
    if (choice_ == RendererChoice::hardware && !isWindowMissing)
        marker_.clear();
    guard_.reset();
    memory_.flush();
}

void RendererSafeguard::askAfterFailedStart()
{
    const NSAlert alert{
        .messageText = question,
        .informativeText = "Last time, Velmaro Online ended before it could show a page. A broken "
                           "graphics driver may be the reason. This time it draws without the "
                           "graphics processor, which is a little slower.",
        .alertStyle = NSAlert::Style::warning,
        .buttons = {"Draw Without It", "Use It Next Time"},
    };
    alert.runModal([this](int button) {
        remember(button != NSAlert::firstButton);
        marker_.clear();
    });
}

void RendererSafeguard::askAboutMissingPage()
{
    const NSAlert alert{
        .messageText = question,
        .informativeText = "The page has been loaded but does not appear. A broken graphics driver "
                           "may be the reason. Velmaro Online can restart and draw without the "
                           "graphics processor, which is a little slower.",
        .alertStyle = NSAlert::Style::warning,
        .buttons = {"Restart Without It", "Leave It As It Is"},
    };
    alert.runModal([this](int button) {
        wantsRestart_ = button == NSAlert::firstButton;
        remember(!wantsRestart_);
        if (wantsRestart_)
            platform::NSApplication::shared().terminate();
    });
}

void RendererSafeguard::remember(bool usesGraphicsProcessor)
{
    memory_.setBoolean(answerKey, usesGraphicsProcessor);
}

} // namespace gtk
