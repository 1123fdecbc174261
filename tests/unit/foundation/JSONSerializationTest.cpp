#include "platform/foundation/JSONSerialization.h"

#include <gtest/gtest.h>
#include <limits>

using platform::Value;
namespace JSONSerialization = platform::JSONSerialization;

TEST(JSONSerialization, everyValueComesBack)
{
    const Value value = Value::Object{
        {"null", nullptr},
        {"boolean", true},
        {"number", -12.5},
        {"text", "a\"b\\c\n\u2028\U0001F697"},
        {"array", Value::Array{1, "two", Value::Array{}, Value::Object{}}},
    };
    const auto text = JSONSerialization::encode(value);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find('\n'), text->npos);
    EXPECT_EQ(JSONSerialization::decode(*text), value);
}

TEST(JSONSerialization, readsOneWholeValueInUTF8AndNothingElse)
{
    for (const auto* text : {"", " ", "{", "{\"a\":1}x", "[1,]", "{a:1}", "'a'", "nul", "\"\xff\"",
             "01", "\"a\nb\"", "NaN"})
        EXPECT_FALSE(JSONSerialization::decode(text)) << text;
    EXPECT_EQ(JSONSerialization::decode(" [ 1 ] "), Value(Value::Array{1}));
}

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
