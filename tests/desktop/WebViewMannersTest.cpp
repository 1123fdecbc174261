#include "harness/UserInput.h"
#include "webview/WebViewTest.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>

namespace desktop {

using platform::Value;

class WebViewMannersTest : public WebViewTest {
protected:
    void SetUp() override
    {
        configuration.preferences.javaScriptCanOpenWindowsAutomatically = true;
        server.pages["/next"] = {.body = "<title>Next</title>"};
        openView();
        ASSERT_TRUE(loads("/"));
    }
};

TEST_F(WebViewMannersTest, whatAPageAsksForBesideItsAreaIsRefusedAtOnce)
{
    const std::pair<const char*, Value> table[] = {
        {"alert('!') === undefined", true},
        {"confirm('?')", false},
        {"prompt('?', 'default')", nullptr},
        {"print() === undefined", true},
        {"window.open('/next')", nullptr},
        {"(window.close(), 'here')", "here"},
    };
    for (const auto& [expression, answer] : table)
        EXPECT_EQ(valueOf(expression), answer) << expression;
    EXPECT_TRUE(window->get_visible());
}

TEST_F(WebViewMannersTest, aPageHasTheKeyboardAtFirstAndLetsItGoAtBothEnds)
{
    Gtk::Box box;
    Gtk::Button button("Outside");
    window->unset_child();
    box.append(button);
    box.append(view->nativeWidget());
    window->set_child(box);

    for (const auto* key : {"Tab", "shift+Tab"}) {
        ASSERT_TRUE(until([&] { return gtk_widget_has_focus(GTK_WIDGET(native())); }));
        UserInput::press(key);
        ASSERT_TRUE(until([&] { return button.has_focus(); })) << key;
        gtk_widget_grab_focus(GTK_WIDGET(native()));
    }
}

TEST_F(WebViewMannersTest, permissionsAreDenied)
{
    view->evaluateJavaScript("navigator.geolocation.getCurrentPosition("
                             "() => webkit.messageHandlers.probe.postMessage('granted'),"
                             "error => webkit.messageHandlers.probe.postMessage(error.code))");

    ASSERT_TRUE(until([&] { return !probe->messages.empty(); }));
    EXPECT_EQ(probe->last(), 1);
}

TEST_F(WebViewMannersTest, aPageCannotHoldBackTheUser)
{
    view->evaluateJavaScript("onbeforeunload = event => { event.preventDefault(); return 'Stay!' };"
                             "location.href = '/next'");

    EXPECT_TRUE(isReadyWith("Next"));
}

TEST_F(WebViewMannersTest, addressesThatNobodyCanLoadLeaveThePageWhereItIs)
{
    for (const auto* address : {"mailto:a@b.example", "tel:1234", "unknown:thing", "MailTo:x"}) {
        view->evaluateJavaScript(std::string("location.href = '") + address + "'");
        EXPECT_EQ(valueOf("document.title"), "Home") << address;
    }
    EXPECT_EQ(valueOf("location.pathname"), "/");
    EXPECT_FALSE(panel());
}

TEST_F(WebViewMannersTest, aPageBehindAPasswordShowsWhatTheServerSaysWithoutOne)
{
    server.pages["/secret"] = {.body = "<title>Password needed</title>",
        .headers = {{"WWW-Authenticate", "Basic realm=\"here\""}},
        .status = 401};

    EXPECT_TRUE(loads("/secret", "Password needed"));
}

TEST_F(WebViewMannersTest, filesThatNobodyTakesAreNotSaved)
{
    server.pages["/file"] = {
        .body = "bytes", .headers = {{"Content-Disposition", "attachment; filename=file.csv"}}};
    const char* downloads = g_get_user_special_dir(G_USER_DIRECTORY_DOWNLOAD);

    view->evaluateJavaScript("location.href = '/file'");

    ASSERT_TRUE(until([&] { return server.requestCount("/file") > 0 && !view->isLoading(); }));
    EXPECT_EQ(valueOf("document.title"), "Home");
    for (const std::filesystem::path folder : {downloads ? downloads : "", g_get_home_dir(), "."})
        EXPECT_FALSE(std::filesystem::exists(folder / "file.csv")) << folder;
}

} // namespace desktop
