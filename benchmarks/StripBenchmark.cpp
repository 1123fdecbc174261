// What a change of the tabs costs with the real toolkit: the strip in a window on screen, with 1,
// 100 and 1,000 tabs. Counted is the processor time of the main thread, first until the widgets are
// up to date, then until the frame that shows it is painted.

#include "platform/foundation/UserDefaults.h"
#include "platform/gtk/GtkPlatform.h"
#include "platform/gtk/ui/WindowContent.h"
#include "platform/ui/Views.h"
#include "Samples.h"
#include "tabs/RouteRestorer.h"
#include "tabs/TabBar.h"
#include "tabs/TabbedAppModel.h"

#include <cstdio>
#include <ctime>
#include <gtkmm.h>

using velmaro::TabbedAppModel;

namespace {

constexpr int rounds = 50;

std::chrono::nanoseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void runLoopUntil(const bool& isDone)
{
    while (!isDone)
        g_main_context_iteration(nullptr, TRUE);
}

// The strip in a window of its own, painted.
class Strip {
public:
    Strip(gtk::GtkPlatform& platform, int count)
        : platform_(platform)
    {
        platform.userDefaults().setStringArray(velmaro::RouteRestorer::key,
            std::vector<std::string>(static_cast<std::size_t>(count), "drives"));
        model_ = TabbedAppModel::make();
        content_ = std::make_unique<gtk::WindowContent>(ui::View(velmaro::TabBar{model_}));
        window_.set_default_size(1200, 60);
        window_.set_child(content_->widget());
        window_.present();
        awaitFrame();
        bool isIdle = false;
        platform.mainQueue().endStart();
        platform.mainQueue().asyncWhenIdle([&] { isIdle = true; });
        runLoopUntil(isIdle);
        awaitFrame();
    }

    ~Strip() { window_.unset_child(); }

    TabbedAppModel& model() { return *model_; }

    void awaitUpdate()
    {
        bool isDone = false;
        platform_.mainQueue().async([&] { isDone = true; }); // behind the redraw
        runLoopUntil(isDone);
    }

    void awaitFrame()
    {
        struct Frame {
            bool isPainted = false;
        } frame;
        auto* clock = gtk_widget_get_frame_clock(GTK_WIDGET(window_.gobj()));
        const auto handler = g_signal_connect_swapped(clock, "after-paint",
            G_CALLBACK(+[](Frame* painted) { painted->isPainted = true; }), &frame);
        gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_PAINT);
        runLoopUntil(frame.isPainted);
        g_signal_handler_disconnect(clock, handler);
    }

private:
    gtk::GtkPlatform& platform_;
    std::shared_ptr<TabbedAppModel> model_;
    std::unique_ptr<gtk::WindowContent> content_;
    Gtk::Window window_;
};

void measure(const char* name, Strip& strip, int count, const std::function<void(int)>& change)
{
    Samples update;
    Samples frame;
    for (int round = -3; round < rounds; ++round) { // the first ones warm up
        const auto start = processorTime();
        change(round + 3);
        strip.awaitUpdate();
        const auto updated = processorTime();
        strip.awaitFrame();
        if (round < 0)
            continue;
        update.add(updated - start);
        frame.add(processorTime() - start);
    }
    std::printf(
        "%-14s %6d tabs %14.3f ms %14.3f ms\n", name, count, update.median(), frame.median());
}

void measureAll(gtk::GtkPlatform& platform, int count)
{
    Strip strip(platform, count);
    auto& model = strip.model();
    measure("retitle", strip, count,
        [&](int round) { model.activeTab()->pageTitle = "Title " + std::to_string(round); });
    measure("select", strip, count, [&](int) { model.nextTab(); });
    measure("move", strip, count,
        [&](int) { model.moveTab(model.tabs().front()->id, platform::UUID()); });
    measure("open", strip, count, [&](int) { model.newTab(); });
    measure("close", strip, count, [&](int) { model.closeTab(model.activeIndex()); });
}

} // namespace

int main()
{
    gtk::GtkPlatform platform({.identifier = "example.velmaro.StripBenchmark",
        .address = {},
        .geocoder = "https://velmaro.example"});
    Gtk::Application::create();
    gtk_init();
    std::printf("%-26s %17s %17s\n", "median of processor time", "widgets", "with the frame");
    for (const int count : {1, 100, 1000})
        measureAll(platform, count);
}
