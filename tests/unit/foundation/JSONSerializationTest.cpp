#include "platform/foundation/JSONSerialization.h"

#include <gtest/gtest.h>
#include <limits>

using platform::Value;
namespace JSONSerialization = platform::JSONSerialization;

TEST(JSONSerialization, refusesToWriteWhatJSONCannotHold)
{
    EXPECT_FALSE(JSONSerialization::encode(Value(std::numeric_limits<double>::infinity())));
    EXPECT_FALSE(JSONSerialization::encode(Value(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_FALSE(JSONSerialization::encode(Value::Array{Value("\xc3")}));
    EXPECT_FALSE(JSONSerialization::encode(Value::Object{{"\xff", 1}}));
}

TEST(JSONSerialization, refusesWhatIsNestedTooDeepForTheStack)
{
    const auto nested = [](std::size_t depth) {
        return std::string(depth, '[') + std::string(depth, ']');
    };
    EXPECT_TRUE(JSONSerialization::decode(nested(100)));
    EXPECT_FALSE(JSONSerialization::decode(nested(200'000)));
}
