// The desktop's services that show notifications.

#include "harness/FakeNotificationDaemon.h"
#include "harness/MainLoop.h"
#include "platform/gtk/usernotifications/DesktopNotifications.h"
#include "platform/gtk/usernotifications/PortalNotifications.h"

#include <giomm/init.h>
#include <gtest/gtest.h>

namespace desktop {

namespace {

using Manner = FakeNotificationDaemon::Manner;
using gtk::DesktopNotifications;

struct Click {
    std::map<std::string, std::string> userInfo;
    std::string token;

    bool operator==(const Click&) const = default;
};

class NotificationServiceTest : public testing::Test {
protected:
    static void SetUpTestSuite() { Gio::init(); }

    // Posts and returns the error; "" means that it was shown, nothing that no answer came.
    static std::optional<std::string> post(
        gtk::NotificationService& service, const platform::UNNotificationRequest& request)
    {
        std::optional<std::string> outcome;
        service.post(request, [&](const auto& error) {
            outcome = error ? error->localizedDescription : std::string();
        });
        EXPECT_FALSE(outcome) << "told inside the call";
        EXPECT_TRUE(until([&] { return outcome.has_value(); }));
        return outcome;
    }

    std::vector<Click> clicks;
    DesktopNotifications notifications{
        "example.velmaro.Online", [this](const auto& userInfo, const auto& token) {
            clicks.push_back({userInfo, token});
        }};
};

} // namespace

TEST_F(NotificationServiceTest, textsAreShownAsTheyAre)
{
    const std::string nul("a\0b", 3);
    struct Case {
        Manner manner;
        std::string body;
        std::string shown;
    };
    for (const auto& [manner, body, shown] : {
             Case{Manner::showsMarkup, "<b>Tom & Eve</b>", "&lt;b&gt;Tom &amp; Eve&lt;/b&gt;"},
             Case{Manner::showsPlainText, "<b>Tom & Eve</b>", "<b>Tom & Eve</b>"},
             Case{Manner::showsPlainText, nul, "ab"},
         }) {
        FakeNotificationDaemon daemon(manner);
        DesktopNotifications fresh("example.velmaro.Online", [](const auto&, const auto&) {});
        EXPECT_EQ(post(fresh, {body, {.title = "<i>" + nul, .body = body}}), "");
        ASSERT_EQ(daemon.shown().size(), 1u);
        EXPECT_EQ(daemon.shown()[0].body, shown);
        EXPECT_EQ(daemon.shown()[0].title, "<i>ab");
    }
}

TEST_F(NotificationServiceTest, aClickTellsWhatTheNotificationCarries)
{
    FakeNotificationDaemon daemon;
    post(notifications, {"first", {.userInfo = {{"key", "1"}}}});
    post(notifications, {"second", {.userInfo = {{"key", "2"}}}});
    post(notifications, {"first", {.userInfo = {{"key", "3"}}}});
    const auto shown = daemon.shown();
    EXPECT_EQ(shown[2].replaced, shown[0].number);

    daemon.click(7); // somebody else's
    daemon.click(shown[1].number);
    daemon.click(shown[0].number);
    EXPECT_TRUE(until([&] { return clicks.size() == 2; }));
    EXPECT_EQ(clicks, (std::vector<Click>{{{{"key", "2"}}, "token"}, {{{"key", "3"}}, "token"}}));
}

TEST_F(NotificationServiceTest, insideASandboxThePortalKeepsTheAction)
{
    gtk::PortalNotifications portalNotifications("notification");
    const platform::UNNotificationRequest request{
        "id", {.title = "<i>", .body = "b", .userInfo = {{"vlDeepLink", "velmaro://page/fuel"}}}};
    EXPECT_NE(post(portalNotifications, request), "");

    const FakeService portal(G_BUS_TYPE_SESSION, "org.freedesktop.portal.Desktop",
        {{"AddNotification", FakeService::answering()}});
    EXPECT_EQ(post(portalNotifications, request), "");
    EXPECT_TRUE(portal.isCalled("('id', {'body': <'b'>, 'default-action': <'app.notification'>, "
                                "'default-action-target': <{'vlDeepLink': "
                                "'velmaro://page/fuel'}>, 'title': <'<i>'>})"));
}

} // namespace desktop
