#include "web/DeepLink.h"

#include <gtest/gtest.h>

using velmaro::DeepLink;

TEST(DeepLink, leadsWhereItsHostAndPathSay)
{
    struct Case {
        const char* address;
        std::optional<DeepLink> link;
    };
    const auto route = [](const char* name) { return DeepLink{name, "", {}}; };
    const auto drive = [](const char* number) {
        return DeepLink{"drives", "viewDriveDetail", number};
    };
    const std::optional<DeepLink> nowhere;

    const Case cases[] = {
        {"velmaro://page/drives", route("drives")},
        {"velmaro://PAGE/Drives/more?x=1#y", route("Drives")},
        {"velmaro://page/%2F/fuel", route("fuel")},
        {"velmaro://page", nowhere},

        {"VELMARO://Dashboard", route("dashboard")},
        {"velmaro://me@fuel:80", route("fuel")},

        {"velmaro://drive/42", drive("42")},
        {"velmaro://Drive/+007", drive("7")},
        {"velmaro://drive/-9223372036854775808", drive("-9223372036854775808")},
        {"velmaro://drive/9223372036854775808", nowhere},
        {"velmaro://drive/4x", nowhere},
        {"velmaro://drive/%2042", nowhere},
        {"velmaro://drive", nowhere},

        {"velmaro://new/drive", DeepLink{"drives", "addDrive", {}}},
        {"velmaro://NEW/FUEL/x", DeepLink{"fuel", "addFuel", {}}},
        {"velmaro://new/report", DeepLink{"reports", "loadReports", {}}},
        {"velmaro://new/boat", nowhere},

        {"velmaro://", nowhere},
        {"velmaro:///page/drives", nowhere},
        {"https://page/drives", nowhere},
    };
    for (const auto& [address, link] : cases) {
        const auto url = platform::URL::fromString(address);
        ASSERT_TRUE(url) << address;
        EXPECT_EQ(velmaro::parseDeepLink(*url), link) << address;
    }
}
