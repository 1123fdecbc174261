#include "web/DeepLink.h"

#include <gtest/gtest.h>

using velmaro::DeepLink;

namespace velmaro {

void PrintTo(const DeepLink& link, std::ostream* stream)
{
    *stream << link.route << ' ' << link.function << ' ' << link.argument.value_or("-");
}

} // namespace velmaro

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
        {"velmaro://page//fuel", route("fuel")},
        {"velmaro://page/o'brien", route("o'brien")},
        {"velmaro://page/a%20b", route("a b")},
        {"velmaro://page/%2F/fuel", route("fuel")},
        {"velmaro://page", nowhere},
        {"velmaro://page/", nowhere},

        {"VELMARO://Dashboard", route("dashboard")},
        {"velmaro://account-groups/ignored", route("account-groups")},
        {"velmaro://me@fuel:80", route("fuel")},

        {"velmaro://drive/42", drive("42")},
        {"velmaro://Drive/+007", drive("7")},
        {"velmaro://drive/-0", drive("0")},
        {"velmaro://drive/-12", drive("-12")},
        {"velmaro://drive/9223372036854775807", drive("9223372036854775807")},
        {"velmaro://drive/-9223372036854775808", drive("-9223372036854775808")},
        {"velmaro://drive/+9223372036854775807", drive("9223372036854775807")},
        {"velmaro://drive/00000000000000000000000000000000042", drive("42")},
        {"velmaro://drive/9223372036854775808", nowhere},
        {"velmaro://drive/-9223372036854775809", nowhere},
        {"velmaro://drive/99999999999999999999999", nowhere},
        {"velmaro://drive/abc", nowhere},
        {"velmaro://drive/4x", nowhere},
        {"velmaro://drive/%2042", nowhere},
        {"velmaro://drive/42%20", nowhere},
        {"velmaro://drive/0x2A", nowhere},
        {"velmaro://drive/4.0", nowhere},
        {"velmaro://drive/1e3", nowhere},
        {"velmaro://drive/+", nowhere},
        {"velmaro://drive/-", nowhere},
        {"velmaro://drive/+-4", nowhere},
        {"velmaro://drive/--4", nowhere},
        {"velmaro://drive/%D9%A4%D9%A2", nowhere}, // 42 in Arabic digits
        {"velmaro://drive/4%00", nowhere},
        {"velmaro://drive", nowhere},
        {"velmaro://drive/", nowhere},

        {"velmaro://new/drive", DeepLink{"drives", "addDrive", {}}},
        {"velmaro://new/Vehicle", DeepLink{"vehicles", "addVehicle", {}}},
        {"velmaro://new/driver", DeepLink{"drivers", "addDriver", {}}},
        {"velmaro://NEW/FUEL/x", DeepLink{"fuel", "addFuel", {}}},
        {"velmaro://new/charging", DeepLink{"charging", "addCharging", {}}},
        {"velmaro://new/report", DeepLink{"reports", "loadReports", {}}},
        {"velmaro://new/boat", nowhere},
        {"velmaro://new/", nowhere},
        {"velmaro://new", nowhere},

        {"velmaro://", nowhere},
        {"velmaro:///page/drives", nowhere},
        {"velmaro:page/drives", nowhere},
        {"velmaro:drive", nowhere},
        {"https://page/drives", nowhere},
        {"velmaros://page/drives", nowhere},
        {"//page/drives", nowhere},
    };
    for (const auto& [address, link] : cases) {
        const auto url = platform::URL::fromString(address);
        ASSERT_TRUE(url) << address;
        EXPECT_EQ(velmaro::parseDeepLink(*url), link) << address;
    }
}
