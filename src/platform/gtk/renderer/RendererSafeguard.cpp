#include "platform/gtk/renderer/RendererSafeguard.h"

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSApplication.h"
#include "platform/gtk/renderer/PageFrame.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/gtk/windows/MainWindow.h"
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

std::int64_t paintedFrames(Gtk::Widget& window)
{
    auto* clock = gtk_widget_get_frame_clock(window.gobj());
    return clock ? gdk_frame_clock_get_frame_counter(clock) + 1 : 0; // the first is number 0
}

PageWatch::Sight look(MainWindow* window, WebEngine& engine)
{
    if (!window)
        return {};
    auto* page = engine.visiblePage()->page();
    const PageWatch::Sight sight = {
        .isWindowVisible = window->isVisible(),
        .windowFrames = paintedFrames(window->native()),
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

void RendererSafeguard::watch(std::function<MainWindow*()> window, WebEngine& engine)
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
    // Who closes a window in which nothing was ever painted has no better way to end the program.
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
