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

TEST_F(WebViewMannersTest, aPageBehindAPasswordShowsWhatTheServerSaysWithoutOne)
{
    server.pages["/secret"] = {.body = "<title>Password needed</title>",
        .headers = {{"WWW-Authenticate", "Basic realm=\"here\""}},
        .status = 401};

    EXPECT_TRUE(loads("/secret", "Password needed"));
}

} // namespace desktop
