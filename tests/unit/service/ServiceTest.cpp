#include "service/Service.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

TEST(Service, takesAnHttpsOriginAndNothingElse)
{
    simulated::SimulatedPlatform platform;
    auto& service = velmaro::Service::current();
    for (const auto* origin : {"https://intranet.example", "https://[::1]:65535"}) {
        EXPECT_TRUE(service.setServiceOrigin(origin)) << origin;
        EXPECT_EQ(service.onlineURL(), origin + std::string("/online"));
        EXPECT_EQ(service.welcomeURL(), origin + std::string("/online/welcome.php"));
    }
    ASSERT_TRUE(service.setServiceOrigin("https://kept.example"));
    for (const auto* origin : {"", "http://intranet.example", "https://intranet.example/online",
             "https://intranet.example?a", "https://me@intranet.example",
             "https://intranet.example:0", "https://intranet.example:65536",
             "https://intranet.example\n"}) {
        EXPECT_FALSE(service.setServiceOrigin(origin)) << origin;
        EXPECT_EQ(service.serviceOrigin(), "https://kept.example");
    }
    EXPECT_EQ(service.serviceHost(), "kept.example");
}
