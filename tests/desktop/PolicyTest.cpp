// Where the pages of a tab may go, and what they may have: the application's policy on the real
// engine and desktop, with the pages of a service that tries everything.

#include "harness/DefaultProgram.h"
#include "harness/DemoServiceProcess.h"
#include "harness/ShownWindow.h"
#include "harness/UserInput.h"
#include "platform/gtk/GtkPlatform.h"
#include "service/Service.h"
#include "web/WebView.h"
#include "webview/WebViewTest.h"

namespace desktop {

namespace {

using Addresses = std::vector<std::string>;

// Does something that may come too early again and again, and leaves the program time for it.
[[nodiscard]] bool repeatUntil(
    const std::function<void()>& action, const std::function<bool()>& condition)
{
    constexpr gint64 pause = G_USEC_PER_SEC / 5;
    gint64 next = 0;
    return until([&] {
        if (condition())
            return true;
        if (g_get_monotonic_time() >= next) {
            action();
            next = g_get_monotonic_time() + pause;
        }
        return false;
    });
}

// The panel in which files are chosen; null while there is none.
GtkFileChooser* filePanel()
{
    auto* panel = shownWindow([](GtkWidget* window) { return GTK_IS_FILE_CHOOSER(window); });
    return panel ? GTK_FILE_CHOOSER(panel) : nullptr;
}

std::size_t chosenCount()
{
    const gtk::ObjectPointer<GListModel> files(gtk_file_chooser_get_files(filePanel()));
    return g_list_model_get_n_items(files.get());
}

// A tab on the demo service, on a desktop whose default program is recorded.
class PolicyTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static const auto application = Gtk::Application::create();
        ASSERT_TRUE(gtk_init_check());
    }

    PolicyTest()
    {
        auto& hosts = velmaro::Service::current();
        hosts.setServiceOrigin(service.origin());
        hosts.setPaymentCheckoutHosts("pay.localhost sandbox.pay.localhost");
        platform_.trust({"velmaro.localhost", "pay.localhost", "sandbox.pay.localhost"},
            service.clientEnvironment().at("VELMARO_SERVICE_CERTIFICATE"));
        const velmaro::WebView tab{std::make_shared<velmaro::WebModel>("fuel")};
        coordinator_ = tab.makeCoordinator();
        view = tab.makeNSView(*coordinator_);
        auto& native = dynamic_cast<gtk::GtkWebView&>(*view);
        window.set_default_size(900, 700);
        window.set_child(native.nativeWidget());
        window.present();
        native.setShown(true);
    }

    ~PolicyTest() override { window.unset_child(); }

    // While the engine starts on a busy machine, a page that takes the place of one that has not
    // been asked for yet may wait in vain.
    void SetUp() override
    {
        ASSERT_TRUE(until([&] { return !service.requests("/online").empty(); }));
    }

    // Whether a page of the service that misbehaves is there.
    [[nodiscard]] bool loads(const std::string& path, const std::string& title)
    {
        view->load({*platform::URL::fromString(service.origin() + path)});
        return shows(title);
    }

    [[nodiscard]] bool shows(const std::string& title)
    {
        return until([&] { return view->title() == title && !view->isLoading(); });
    }

    void click(const std::string& id)
    {
        view->evaluateJavaScript("document.getElementById('" + id + "').click()");
    }

    // Whether these addresses and no others have been opened since the last call, in any order:
    // programs that are started one after the other run side by side.
    [[nodiscard]] bool opened(Addresses expected)
    {
        expected.push_back("mailto:mark-" + std::to_string(++marks_));
        view->evaluateJavaScript("window.open('" + expected.back() + "')");
        std::ranges::sort(expected);
        Addresses found;
        EXPECT_TRUE(until([&] {
            found = program.addresses();
            found.erase(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(seen_));
            return found.size() >= expected.size();
        }));
        seen_ += found.size();
        std::ranges::sort(found);
        EXPECT_EQ(found, expected);
        return found == expected;
    }

    std::string elsewhere(const std::string& suffix = "") const
    {
        return "https://elsewhere.localhost:" + std::to_string(service.port()) + "/elsewhere"
            + suffix;
    }

    DefaultProgram program;
    DemoServiceProcess service{{.isHostile = true}};
    std::shared_ptr<platform::WKWebView> view;

private:
    gtk::GtkPlatform platform_{
        {.identifier = "example.velmaro.PolicyTest", .address = {}, .geocoder = ""}};
    std::shared_ptr<velmaro::Coordinator> coordinator_;
    std::size_t seen_ = 0;
    int marks_ = 0;

protected:
    Gtk::Window window;
};

} // namespace

TEST_F(PolicyTest, linksAndWindowsStayInTheTabOrGoToTheDefaultProgram)
{
    constexpr auto here = "Links and new windows";
    constexpr auto help = "Handbook — Velmaro Online";
    struct Case {
        const char* id;
        Addresses opened;
        const char* title = here;
    };
    const Case table[] = {
        {"own-blank", {}, help},
        {"open", {}, help},
        {"foreign", {elsewhere()}},
        {"foreign-download", {elsewhere()}},
        {"open-foreign", {elsewhere()}},
        {"mail", {"mailto:support@velmaro.example?subject=Hello"}},
        {"sms", {"sms:+0005550142"}},
        {"unknown", {}},
        {"data", {}},
    };
    ASSERT_TRUE(loads("/hostile/windows", here));
    for (const auto& [id, addresses, title] : table) {
        SCOPED_TRACE(id);
        click(id);
        if (title != here) {
            EXPECT_TRUE(shows(title));
            EXPECT_TRUE(loads("/hostile/windows", here));
        }
        EXPECT_TRUE(opened(addresses));
        EXPECT_EQ(view->title(), here);
    }
    for (const auto& start : program.starts())
        EXPECT_NE(start.activationToken, "") << start.address;
}

TEST_F(PolicyTest, fileInputsOpenAPanel)
{
    const auto folder = std::filesystem::path(std::getenv("HOME")) / "files";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "a %23 b.csv") << "a,b\n";
    std::ofstream(folder / "c.csv") << "c\n";
    const auto openPanel = [&](const std::string& id) {
        view->evaluateJavaScript("document.title = 'Files'");
        click(id);
        ASSERT_TRUE(
            until([] { return filePanel() && gtk_window_is_active(GTK_WINDOW(filePanel())); }));
    };
    const auto closePanelWith = [](const char* key) {
        const auto press = [&] { UserInput::press(key); };
        EXPECT_TRUE(repeatUntil(press, [] { return !filePanel(); }));
    };
    // What the page says about the input, in its title.
    const auto says = [&](const std::string& text) {
        return until([&] {
            view->evaluateJavaScript("document.title = document.body.lastElementChild.textContent");
            return view->title() == text;
        });
    };
    ASSERT_TRUE(loads("/hostile/files", "File inputs and a drop zone"));

    openPanel("several");
    const gtk::ObjectPointer<GFile> file(g_file_new_for_path((folder / "a %23 b.csv").c_str()));
    gtk_file_chooser_set_file(filePanel(), file.get(), nullptr);
    ASSERT_TRUE(repeatUntil([] { UserInput::press("ctrl+a"); }, [] { return chosenCount() == 2; }));
    closePanelWith("alt+o");
    EXPECT_TRUE(says("several: a %23 b.csv (4), c.csv (2)"));

    openPanel("one");
    EXPECT_FALSE(gtk_file_chooser_get_select_multiple(filePanel()));
    closePanelWith("Escape");
    EXPECT_TRUE(says("one: cancelled"));
}

TEST_F(PolicyTest, framesStayOnTheServiceAndManyForeignOnesDoNotFreezeTheWindow)
{
    constexpr int count = 200;
    Addresses expected = {"mailto:frame@velmaro.example"};
    for (int frame = 0; frame < count; ++frame)
        expected.push_back(elsewhere("?frame=" + std::to_string(frame)));

    const auto start = g_get_monotonic_time();
    gint64 last = start, longestPause = 0;
    gtk::Timer pulse;
    const std::function<void()> beat = [&] {
        const auto now = g_get_monotonic_time();
        longestPause = std::max(longestPause, now - std::exchange(last, now));
        pulse.start(0.01, beat);
    };
    beat();
    ASSERT_TRUE(loads("/hostile/frames?foreign=" + std::to_string(count), "Frames of all kinds"));
    EXPECT_TRUE(opened(expected));
    EXPECT_EQ(service.requests("/checkout").size(), 1u);
    EXPECT_EQ(service.requests("/elsewhere").size(), 0u);
    EXPECT_LT(longestPause, (g_get_monotonic_time() - start) / 3) << "opened in one go";
}

} // namespace desktop
