// From the drop of a large CSV file on a tab until the page's function has returned, beside handing
// a script with the same text in it, ready made, to the engine's bare view. Also how much more
// memory the program has needed meanwhile than before, at the most.

#include "platform/gtk/GtkPlatform.h"
#include "platform/gtk/webkit/GtkWebView.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "Samples.h"
#include "web/Coordinator.h"
#include "web/PageScripts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtkmm/application.h>
#include <gtkmm/window.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t fileSize = 50 << 20; // bytes
constexpr double mebibyte = 1 << 20;

constexpr auto page = R"(<title>Import</title><script>
    function impLoadTextFromNative(name, text) {
        webkit.messageHandlers.done.postMessage(text.length);
    }
</script>)";

std::filesystem::path temporaryFile(const std::string& name, const std::string& contents)
{
    auto path = std::filesystem::temp_directory_path() / name;
    std::ofstream(path) << contents;
    return path;
}

std::string table()
{
    std::string text;
    while (text.size() < fileSize)
        text += "2024-05-06,\"Estate, blue\",Harbour Road,41.27,73.05,120455\r\n";
    text.resize(fileSize);
    return text;
}

// One of the sizes that the system keeps of this process, in bytes.
double memory(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ":"))
            return std::atof(line.c_str() + name.size() + 1) * 1024;
    }
    return 0;
}

void forgetMemoryPeak()
{
    std::ofstream("/proc/self/clear_refs") << 5;
}

// Counts the calls of the page's function.
struct Calls final : platform::WKScriptMessageHandler {
    void userContentControllerDidReceiveScriptMessage(const platform::WKScriptMessage&) override
    {
        ++count;
    }

    int count = 0;
};

template <class Condition> void runUntil(Condition condition)
{
    while (!condition())
        g_main_context_iteration(nullptr, TRUE);
}

struct Measured {
    Samples times;
    double mostMemory = 0; // mebibytes
};

void measure(Measured& measured, const Calls& calls, const std::function<void()>& begin)
{
    forgetMemoryPeak();
    const double before = memory("VmRSS");
    const int count = calls.count;
    const auto start = Clock::now();
    begin();
    runUntil([&] { return calls.count > count; });
    measured.times.add(Clock::now() - start);
    measured.mostMemory = std::max(measured.mostMemory, (memory("VmHWM") - before) / mebibyte);
}

void print(const char* name, const Measured& measured)
{
    std::printf(
        "%-12s %20s ms %8.0f MiB\n", name, measured.times.text().c_str(), measured.mostMemory);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const int rounds = argumentCount > 1 ? std::atoi(arguments[1]) : 5;
    gtk::GtkPlatform platform(
        {.identifier = "example.velmaro.Benchmark", .address = std::nullopt, .geocoder = ""});
    const auto application = Gtk::Application::create();
    gtk_init();

    const auto text = table();
    const auto file = platform::URL::fileURL(temporaryFile("velmaro-drop.csv", text).string());

    const auto calls = std::make_shared<Calls>();
    platform::WKWebViewConfiguration configuration;
    configuration.userContentController.scriptMessageHandlers = {{"done", calls}};
    const auto view = std::make_shared<gtk::GtkWebView>(platform.webEngine(), configuration);
    const auto coordinator = std::make_shared<velmaro::Coordinator>(
        std::make_shared<velmaro::WebModel>(), velmaro::PageMessageRules());
    const auto droppable = std::make_shared<velmaro::DroppableWebView>(*view);
    droppable->dropRouter = coordinator;

    Gtk::Window window;
    window.set_child(view->nativeWidget());
    window.present();
    view->setShown(true);
    auto* engineView =
        WEBKIT_WEB_VIEW(gtk_overlay_get_child(GTK_OVERLAY(view->nativeWidget().gobj())));
    webkit_web_view_load_html(engineView, page, "https://localhost/");
    runUntil([&] { return view->title() == "Import" && !view->isLoading(); });

    Measured drop, bare;
    for (int round = 0; round < rounds; ++round) {
        measure(drop, *calls, [&] { droppable->performDragOperation({{file}}); });
        const auto script = velmaro::PageScripts::importText("velmaro-drop.csv", text);
        measure(bare, *calls, [&] {
            webkit_web_view_evaluate_javascript(engineView, script.data(),
                static_cast<gssize>(script.size()), nullptr, nullptr, nullptr, nullptr, nullptr);
        });
    }
    std::printf(
        "A file of %.0f MiB, %d times: median and middle half, and the most memory it took\n",
        fileSize / mebibyte, rounds);
    print("Drop", drop);
    print("Bare view", bare);
    window.unset_child();
}
