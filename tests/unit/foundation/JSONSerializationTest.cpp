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
