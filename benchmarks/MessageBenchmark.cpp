// How fast messages of a page reach the tab's model, beside two handlers that do without our
// layers: one that reads the field it needs from the engine's value, and one that takes the way
// through JSON text. Messages are posted by one script; the clock runs until the last has been
// handled.

#include "app/PageMessages.h"
#include "harness/DemoServiceProcess.h"
#include "platform/foundation/JSONSerialization.h"
#include "platform/gtk/GtkPlatform.h"
#include "platform/gtk/webkit/GtkWebView.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "Samples.h"
#include "service/Service.h"
#include "web/WebView.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <gtkmm/init.h>
#include <gtkmm/window.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int rounds = 5;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The longest time for which the main loop did nothing else, going by a source that is always due.
class StallWatch {
public:
    StallWatch()
        : source_(g_timeout_add(1, beat, this))
    {
    }
    ~StallWatch() { g_source_remove(source_); }

    double longest() const { return longest_; }

private:
    static gboolean beat(gpointer self)
    {
        auto& watch = *static_cast<StallWatch*>(self);
        watch.longest_ = std::max(watch.longest_, secondsSince(watch.last_));
        watch.last_ = Clock::now();
        return G_SOURCE_CONTINUE;
    }

    Clock::time_point last_ = Clock::now();
    double longest_ = 0;
    guint source_;
};

void runUntil(const std::function<bool()>& condition)
{
    const auto start = Clock::now();
    while (!condition()) {
        g_main_context_iteration(nullptr, TRUE);
        if (secondsSince(start) > 300) {
            std::fprintf(stderr, "message-benchmark: messages are missing\n");
            std::exit(EXIT_FAILURE);
        }
    }
}

// Somebody whom messages to "routeBridge" reach.
struct Receiver {
    const char* name;
    std::function<void(const std::string& script)> evaluate;
    std::function<const std::string&()> route; // what came last
    Samples times = {};
    double longestStall = 0; // seconds
};

struct BareView {
    using Reader = std::string (*)(JSCValue* body);

    explicit BareView(Reader reader)
        : read(reader)
    {
        auto* manager = webkit_user_content_manager_new();
        g_signal_connect(
            manager, "script-message-received::routeBridge", G_CALLBACK(receive), this);
        webkit_user_content_manager_register_script_message_handler(
            manager, "routeBridge", nullptr);
        view = WEBKIT_WEB_VIEW(
            g_object_new(WEBKIT_TYPE_WEB_VIEW, "user-content-manager", manager, nullptr));
        g_object_unref(manager);
        gtk_window_set_child(window.gobj(), GTK_WIDGET(view));
        window.present();
        webkit_web_view_load_html(view, "<title>bare</title>", "https://localhost/");
        runUntil([&] { return !webkit_web_view_is_loading(view); });
    }

    static void receive(WebKitUserContentManager*, JSCValue* body, BareView* self)
    {
        self->route = self->read(body);
    }

    void evaluate(const std::string& script) const
    {
        webkit_web_view_evaluate_javascript(
            view, script.c_str(), -1, nullptr, nullptr, nullptr, nullptr, nullptr);
    }

    Receiver receiver(const char* name) const
    {
        return {name, [this](const auto& script) { evaluate(script); },
            [this]() -> const std::string& { return route; }};
    }

    Reader read;
    std::string route;
    Gtk::Window window;
    WebKitWebView* view = nullptr;
};

std::string readField(JSCValue* body)
{
    auto* page = jsc_value_object_get_property(body, "page");
    g_autofree char* text = jsc_value_to_string(page);
    g_object_unref(page);
    return text;
}

std::string readJSON(JSCValue* body)
{
    g_autofree char* json = jsc_value_to_json(body, 0);
    return *platform::JSONSerialization::decode(json)->member("page")->string();
}

struct Flood {
    int count; // of messages
    int length; // of the text in each
};

void measure(Receiver& receiver, const Flood& flood)
{
    const auto count = std::to_string(flood.count);
    const StallWatch watch;
    const auto start = Clock::now();
    receiver.evaluate("{ const text = '-'.repeat(" + std::to_string(flood.length)
        + "); for (let i = 1; i <= " + count
        + "; ++i) webkit.messageHandlers.routeBridge.postMessage({page: i + text}); }");
    runUntil([&] { return receiver.route().starts_with(count + "-"); });
    receiver.times.add(Clock::now() - start);
    receiver.longestStall = std::max(receiver.longestStall, watch.longest());

    receiver.evaluate("webkit.messageHandlers.routeBridge.postMessage({page: 'idle'})");
    runUntil([&] { return receiver.route() == "idle"; });
}

// The receivers take turns; the first turn only warms up.
void compare(std::vector<Receiver> receivers, const Flood& flood)
{
    std::printf("%d messages of %d characters\n", flood.count, flood.length);
    for (int round = 0; round <= rounds; ++round) {
        for (auto& receiver : receivers) {
            if (round == 1)
                receiver = {receiver.name, receiver.evaluate, receiver.route};
            measure(receiver, flood);
        }
    }
    const double bare = receivers.front().times.median();
    for (const auto& receiver : receivers) {
        const double time = receiver.times.median();
        std::printf("  %-20s %10.1f a second  %5.2f of bare  longest stall %5.0f ms\n",
            receiver.name, flood.count / time * 1000, bare / time, receiver.longestStall * 1000);
    }
}

// One tab of the application on the demo service's page.
class Tab {
public:
    explicit Tab(gtk::GtkPlatform& platform)
        : view_(std::static_pointer_cast<gtk::GtkWebView>(
            velmaro::WebView{model_}.makeNSView(*coordinator_)))
    {
        window_.set_child(view_->nativeWidget());
        window_.present();
        view_->setShown(true);
        runUntil([&] {
            return platform.webEngine().isVisiblePageReady() && model_->currentRoute() == "drives";
        });
    }

    Receiver receiver(const char* name) const
    {
        return {name, [this](const auto& script) { view_->evaluateJavaScript(script); },
            [this]() -> const std::string& { return model_->currentRoute(); }};
    }

private:
    std::shared_ptr<velmaro::WebModel> model_ = std::make_shared<velmaro::WebModel>("drives");
    std::shared_ptr<velmaro::Coordinator> coordinator_ =
        velmaro::WebView{model_, velmaro::pageMessageRules()}.makeCoordinator();
    std::shared_ptr<gtk::GtkWebView> view_;
    Gtk::Window window_;
};

} // namespace

int main()
{
    desktop::DemoServiceProcess demo;
    gtk::GtkPlatform platform(
        {.identifier = "example.velmaro.Benchmark", .address = {}, .geocoder = ""});
    auto& service = velmaro::Service::current();
    const auto certificate = demo.clientEnvironment().at("VELMARO_SERVICE_CERTIFICATE");
    if (!service.setServiceOrigin(demo.origin())
        || platform.trust({service.serviceHost()}, certificate) || !gtk_init_check())
        return EXIT_FAILURE;
    Gtk::init_gtkmm_internals();

    const Tab tab(platform);
    const BareView bare(readField);
    const BareView json(readJSON);
    const std::vector<Receiver> receivers = {
        bare.receiver("bare handler"),
        tab.receiver("into the model"),
        json.receiver("bare, through JSON"),
    };
    compare(receivers, {.count = 100'000, .length = 1});
    compare(receivers, {.count = 1'000, .length = 10'000});
    compare(receivers, {.count = 1, .length = 64 << 20});
    return EXIT_SUCCESS;
}
