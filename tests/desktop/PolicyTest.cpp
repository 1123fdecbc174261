// Where the pages of a tab may go, and what they may have: the application's policy on the real
// engine and desktop, with the pages of a service that tries everything.

#include "harness/DefaultProgram.h"
#include "harness/DemoServiceProcess.h"
#include "harness/Desktop.h"
#include "harness/UserInput.h"
#include "platform/gtk/GtkPlatform.h"
#include "web/Service.h"
#include "web/WebView.h"
#include "webview/WebViewTest.h"

namespace desktop {

namespace {

using Addresses = std::vector<std::string>;

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
        platform_.trust({{"velmaro.localhost", "pay.localhost", "sandbox.pay.localhost"},
            service.clientEnvironment().at("VELMARO_SERVICE_CERTIFICATE")});
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

    // The addresses that have been opened since the last call, up to the ones of a script that
    // runs now.
    Addresses opened()
    {
        const auto mark = "mailto:mark-" + std::to_string(++marks_);
        view->evaluateJavaScript("location.href = '" + mark + "'");
        Addresses all;
        EXPECT_TRUE(until([&] {
            all = program.addresses();
            return std::ranges::find(all, mark) != all.end();
        }));
        all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(seen_));
        seen_ += all.size();
        all.pop_back();
        return all;
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
        {"named", {}, help},
        {"self", {}, help},
        {"open", {}, help},
        {"foreign", {elsewhere()}},
        {"foreign-blank", {elsewhere()}},
        {"foreign-download", {elsewhere()}},
        {"open-foreign", {elsewhere()}},
        {"open-empty", {}},
        {"mail", {"mailto:support@velmaro.example?subject=Hello"}},
        {"mail-blank", {"mailto:support@velmaro.example"}},
        {"tel", {"tel:+0005550142"}},
        {"sms", {"sms:+0005550142"}},
        {"sms-blank", {}},
        {"facetime", {"facetime:robin@velmaro.example"}},
        {"custom", {}},
        {"unknown", {}},
        {"data", {}},
        {"blob", {}},
        {"file", {}},
    };
    ASSERT_TRUE(loads("/hostile/windows", here));
    for (const auto& [id, addresses, title] : table) {
        SCOPED_TRACE(id);
        click(id);
        if (title != here) {
            EXPECT_TRUE(shows(title));
            EXPECT_TRUE(loads("/hostile/windows", here));
        }
        EXPECT_EQ(opened(), addresses);
        EXPECT_EQ(view->title(), here);
    }
    for (const auto& start : program.starts())
        EXPECT_NE(start.activationToken, "") << start.address;
}

TEST_F(PolicyTest, aMiddleClickAndTheContextMenuAskForAWindow)
{
    ASSERT_TRUE(loads("/hostile/windows", "Links and new windows"));
}

TEST_F(PolicyTest, framesStayOnTheServiceAndManyForeignOnesDoNotFreezeTheWindow)
{
    constexpr int count = 200;
    Addresses expected = {"mailto:frame@velmaro.example"};
    for (int frame = 0; frame < count; ++frame)
        expected.push_back(elsewhere("?frame=" + std::to_string(frame)));

    gint64 last = g_get_monotonic_time(), longestPause = 0;
    gtk::Timer pulse;
    const std::function<void()> beat = [&] {
        const auto now = g_get_monotonic_time();
        longestPause = std::max(longestPause, now - std::exchange(last, now));
        pulse.start(0.01, beat);
    };
    beat();
    ASSERT_TRUE(loads("/hostile/frames?foreign=" + std::to_string(count), "Frames of all kinds"));
    auto all = opened();
    EXPECT_EQ(all.size(), expected.size());
    std::ranges::sort(all);
    std::ranges::sort(expected);
    EXPECT_EQ(all, expected);
    EXPECT_EQ(service.requests("/checkout").size(), 1u);
    EXPECT_EQ(service.requests("/elsewhere").size(), 0u);
    std::cout << "longest pause " << longestPause << "\n";
}

TEST_F(PolicyTest, redirectsElsewhereLeaveThePageAlone)
{
    ASSERT_TRUE(loads("/help", "Handbook — Velmaro Online"));
    view->load({*platform::URL::fromString(service.origin() + "/hostile/redirect-elsewhere")});
    EXPECT_TRUE(until([&] { return !program.starts().empty(); }));
    EXPECT_EQ(opened(), Addresses{elsewhere()});
    EXPECT_EQ(view->title(), "Handbook — Velmaro Online");

    EXPECT_TRUE(loads("/checkout", "Checkout — Velmaro Online"));
}

} // namespace desktop
