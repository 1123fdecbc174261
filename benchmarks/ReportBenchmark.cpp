// Measures how long a report takes from its text to its PDF document: as the application makes it,
// with the engine's bare print to a file, and with a browser without a window. Each starts from
// nothing, so each pays for the start of its content process. Then ten reports at once, and how
// late the main loop came meanwhile.

#include "platform/gtk/webkit/OffscreenWebView.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/webkit/WKNavigationDelegate.h"
#include "Samples.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <glibmm/main.h>
#include <gtkmm/application.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

// Tables of text on so many letter pages.
std::string report(int pages)
{
    std::string html = "<!doctype html><title>Report</title><style>td{padding:4px 30px}</style>";
    for (int page = 1; page <= pages; ++page) {
        html += "<h1>Page " + std::to_string(page) + "</h1><table>";
        for (int row = 0; row < 30; ++row)
            html += "<tr><td>Drive " + std::to_string(row)
                + "<td>Long Street 5 to Harbour"
                  "<td><a href='/online'>12.4 km</a>";
        html += "</table>";
    }
    return html;
}

void runUntil(const std::function<bool()>& condition)
{
    while (!condition())
        g_main_context_iteration(nullptr, TRUE);
}

struct Finish final : platform::WKNavigationDelegate {
    void didFinishNavigation(platform::WKWebView&) override { isLoaded = true; }
    bool isLoaded = false;
};

// One report on its way; the settling that the application adds is left out.
struct Job {
    Job(gtk::WebEngine& engine, const std::string& html)
        : view(std::make_shared<gtk::OffscreenWebView>(
            engine, platform::NSSize{816, 1056}, platform::WKWebViewConfiguration()))
    {
        view->navigationDelegate = finish;
        view->loadHTMLString(html, std::nullopt);
    }

    bool isDone()
    {
        if (finish->isLoaded && !isAsked) {
            isAsked = true;
            view->createPDF({}, [this](const auto& result) { hasDocument = result.index() == 0; });
        }
        if (hasDocument)
            view.reset();
        return hasDocument;
    }

    std::shared_ptr<Finish> finish = std::make_shared<Finish>();
    std::shared_ptr<gtk::OffscreenWebView> view;
    bool isAsked = false;
    bool hasDocument = false;
};

void application(gtk::WebEngine& engine, const std::string& html)
{
    Job job(engine, html);
    runUntil([&] { return job.isDone(); });
}

void bareEngine(gtk::WebEngine&, const std::string& html)
{
    const auto view = gtk::retain(WEBKIT_WEB_VIEW(webkit_web_view_new()));
    webkit_web_view_load_html(view.get(), html.c_str(), nullptr);
    runUntil([&] { return !webkit_web_view_is_loading(view.get()); });

    const gtk::ObjectPointer<GtkPrintSettings> settings(gtk_print_settings_new());
    const gtk::ObjectPointer<GtkPageSetup> setup(gtk_page_setup_new());
    gtk::PrintToFile print(view.get(), settings.get(), setup.get());
    bool isDone = false;
    print.start([&](const auto&) { isDone = true; });
    runUntil([&] { return isDone; });
}

void browser(gtk::WebEngine&, const std::string& html)
{
    const std::string folder = std::getenv("HOME");
    std::ofstream(folder + "/report.html") << html;
    const std::string command = "chromium --headless --disable-gpu --user-data-dir=" + folder
        + "/chromium --print-to-pdf=" + folder + "/report.pdf "
        + (geteuid() == 0 ? "--no-sandbox " : "") + folder + "/report.html >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0)
        std::fputs("the browser has failed\n", stderr);
}

void tenAtOnce(gtk::WebEngine& engine, const std::string& html)
{
    auto latest = Clock::now();
    std::chrono::nanoseconds longestStall(0);
    sigc::connection beat = Glib::signal_timeout().connect(
        [&] {
            const auto now = Clock::now();
            longestStall = std::max(longestStall, now - latest);
            latest = now;
            return true;
        },
        10);
    const auto start = Clock::now();
    std::vector<std::unique_ptr<Job>> jobs;
    for (int count = 0; count < 10; ++count)
        jobs.push_back(std::make_unique<Job>(engine, html));
    runUntil([&] {
        std::size_t done = 0;
        for (const auto& job : jobs)
            done += job->isDone();
        return done == jobs.size();
    });
    const auto milliseconds = [](auto duration) {
        return std::chrono::duration<double, std::milli>(duration).count();
    };
    std::printf("ten at once: all done after %.0f ms, longest pause of the main loop %.0f ms\n",
        milliseconds(Clock::now() - start), milliseconds(longestStall));
    beat.disconnect();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const int rounds = argumentCount > 1 ? std::atoi(arguments[1]) : 5;
    const auto program = Gtk::Application::create();
    if (rounds < 1 || !gtk_init_check())
        return 2;
    gtk::WebEngine engine(gtk::StandardPaths::forProgram("report-benchmark"),
        std::make_shared<gtk::HostTrust>(), false);

    struct Contender {
        const char* name;
        void (*run)(gtk::WebEngine&, const std::string& html);
        Samples one;
        Samples hundred;
    };
    Contender contenders[] = {
        {"application", application, {}, {}},
        {"bare print to a file", bareEngine, {}, {}},
        {"Chromium --headless", browser, {}, {}},
    };
    const auto one = report(1), hundred = report(100);
    for (int round = 0; round <= rounds; ++round) { // the first one fills the caches
        for (auto& contender : contenders) {
            for (auto [html, samples] :
                {std::pair(&one, &contender.one), std::pair(&hundred, &contender.hundred)}) {
                const auto start = Clock::now();
                contender.run(engine, *html);
                if (round > 0)
                    samples->add(Clock::now() - start);
            }
        }
    }
    std::printf("%-24s %18s %18s\n", "ms: median (middle half)", "1 page", "100 pages");
    for (const auto& [name, run, first, second] : contenders)
        std::printf("%-24s %18s %18s\n", name, first.text().c_str(), second.text().c_str());
    tenAtOnce(engine, report(10));
}
