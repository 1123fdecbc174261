// One running application for each user, and the addresses that it is asked to open.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

class SingleInstance : public testing::Test {
protected:
    SingleInstance() { SavedSettings::write({{"vl.open.routes", {"dashboard"}}}); }

    // Starts the application once more and returns its exit status.
    std::optional<int> startAgain(const std::vector<std::string>& arguments)
    {
        AppProcess second(service, arguments);
        return second.process().waitForExit();
    }

    DemoServiceProcess service;
};

} // namespace

TEST_F(SingleInstance, argumentsAfterAnAddressAreIgnored)
{
    AppProcess app(service, {"velmaro://drive/42"});
    ASSERT_TRUE(app.waitForPage());
    EXPECT_TRUE(service.isAsked("/online/api/drives/42"));
    EXPECT_EQ(startAgain({}), 0);
    EXPECT_EQ(startAgain({"velmaro://page/vehicles", "velmaro://page/fuel", "--version"}), 0);
    EXPECT_TRUE(service.isAsked("/online/api/vehicles"));

    // By the time that a later address has arrived, the ignored one would have too.
    EXPECT_EQ(startAgain({"velmaro://page/drivers"}), 0);
    EXPECT_TRUE(service.isAsked("/online/api/drivers"));
    EXPECT_TRUE(service.requests("/online/api/fuel").empty());
    EXPECT_EQ(service.requests("/online").size(), 1u);
    EXPECT_EQ(Desktop::windows().size(), 1u);
}

} // namespace desktop
