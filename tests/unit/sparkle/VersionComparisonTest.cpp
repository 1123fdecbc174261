#include "platform/sparkle/SUVersionComparison.h"

#include <gtest/gtest.h>

TEST(VersionComparison, ordersVersionsAsPeopleReadThem)
{
    struct Case {
        const char* lower;
        const char* higher;
    };
    const Case lowerAndHigher[] = {
        {"9", "10"},
        {"1.9.9", "1.10"},
        {"2.0-rc1", "2.0"},
        {"2.0b9", "2.0b10"},
        {"2.0alpha", "2.0beta"},
        {"99999999999999999999999998", "99999999999999999999999999"},
    };
    for (const auto& [lower, higher] : lowerAndHigher) {
        EXPECT_TRUE(std::is_lt(platform::compareVersions(lower, higher))) << lower << ' ' << higher;
        EXPECT_TRUE(std::is_gt(platform::compareVersions(higher, lower))) << lower << ' ' << higher;
    }
    const Case equal[] = {
        {"1", "1.0.0"}, {"1.02", "1.2"}, {"1-2_3", "1.2.3"}, {"", "0"}, {"2.0b1", "2.0.b1"}};
    for (const auto& [left, right] : equal)
        EXPECT_TRUE(std::is_eq(platform::compareVersions(left, right))) << left << ' ' << right;
}
