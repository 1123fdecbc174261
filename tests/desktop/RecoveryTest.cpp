// A start without a network ends on the page once there is one, and with all that was known before.
#include "harness/AppProcess.h"
#include "harness/PrivateNetwork.h"
#include "harness/SavedSettings.h"

#include <gtest/gtest.h>

namespace desktop {

TEST(Recovery, startingOfflineEndsOnThePageWhenTheNetworkComesBack)
{
    // {"firstname":"Ada","lastname":"Example"}; a page that takes them for signed out would make
    // the application forget it.
    const nlohmann::json identity = {
        {"data", "eyJmaXJzdG5hbWUiOiJBZGEiLCJsYXN0bmFtZSI6IkV4YW1wbGUifQ=="}};
    SavedSettings::signIn("Ada", "Example");
    SavedSettings::write({{"vl.open.routes", {"drives"}}, {"vl.user.identity", identity}});

    PrivateNetwork network;
    if (!network.exists())
        GTEST_SKIP() << "no rights to make a network";
    network.connect();
    DemoServiceProcess service;
    network.disconnect();
    AppProcess app(service);
    EXPECT_TRUE(app.shows("Try Again"));
    network.connect();
    EXPECT_TRUE(service.isAsked("/online/api/drives"));
    EXPECT_TRUE(app.waitForPage());
    EXPECT_EQ(SavedSettings::read()["vl.user.identity"], identity);
}

} // namespace desktop
