// Whatever breaks under a page, the way ends on the page again.

#include "harness/AppProcess.h"
#include "harness/PrivateNetwork.h"
#include "harness/SavedCookies.h"
#include "harness/SavedSettings.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// {"firstname":"Ada","lastname":"Example"}
const nlohmann::json identity = {
    {"data", "eyJmaXJzdG5hbWUiOiJBZGEiLCJsYXN0bmFtZSI6IkV4YW1wbGUifQ=="}};

// Somebody who has left the application on the drives' page. Pages that take them for signed out
// would make the application forget the identity.
class Recovery : public testing::Test {
protected:
    Recovery()
    {
        SavedCookies::signIn("Ada", "Example");
        SavedSettings::write({
            {"vl.open.routes", {"drives"}},
            {"vl.user.identity", identity},
        });
    }

    ~Recovery() override { EXPECT_EQ(SavedSettings::read()["vl.user.identity"], identity); }
};

constexpr auto tryAgain = "Try Again";
constexpr auto drives = "/online/api/drives";

void killWebProcess(AppProcess& app)
{
    const auto processes = app.webProcesses();
    ASSERT_FALSE(processes.empty());
    for (const auto pid : processes)
        kill(pid, SIGKILL);
}

} // namespace

TEST_F(Recovery, aWebProcessThatDiesIsReplacedOnceAndThenOnRequest)
{
    DemoServiceProcess service;
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());

    killWebProcess(app);
    EXPECT_TRUE(service.isAsked(drives, 2));
    EXPECT_TRUE(app.waitForPage());

    killWebProcess(app);
    EXPECT_TRUE(app.shows(tryAgain));
    EXPECT_EQ(service.requests(drives).size(), 2u);

    EXPECT_TRUE(app.press(tryAgain));
    EXPECT_TRUE(service.isAsked(drives, 3));
    EXPECT_TRUE(app.waitForPage());
}

TEST_F(Recovery, aServiceThatIsDownEndsOnThePageWhenAskedAgain)
{
    DemoServiceProcess service;
    const int port = service.port();
    service.stop();

    AppProcess app(service);
    EXPECT_TRUE(app.shows(tryAgain));
    EXPECT_EQ(SavedSettings::read()["vl.user.identity"], identity);

    DemoServiceProcess again({.port = port});
    EXPECT_TRUE(app.press(tryAgain));
    EXPECT_TRUE(again.isAsked(drives));
    EXPECT_TRUE(app.waitForPage());
}

TEST_F(Recovery, startingOfflineEndsOnThePageWhenTheNetworkComesBack)
{
    PrivateNetwork network;
    if (!network.exists())
        GTEST_SKIP() << "no rights to make a network";
    network.connect();
    DemoServiceProcess service;
    network.disconnect();

    AppProcess app(service);
    EXPECT_TRUE(app.shows(tryAgain));
    EXPECT_EQ(SavedSettings::read()["vl.user.identity"], identity);

    network.connect();
    EXPECT_TRUE(service.isAsked(drives));
    EXPECT_TRUE(app.waitForPage());
}

} // namespace desktop
