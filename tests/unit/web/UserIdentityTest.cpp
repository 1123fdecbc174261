#include "web/UserIdentity.h"

#include <gtest/gtest.h>

using platform::Data;
using velmaro::UserIdentity;

namespace {

Data dataOf(std::string_view text)
{
    const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
    return Data(bytes, bytes + text.size());
}

} // namespace

TEST(UserIdentity, needsBothNamesAsTexts)
{
    struct Case {
        const char* json;
        std::optional<UserIdentity> identity;
    };
    const std::optional<UserIdentity> none;
    const Case cases[] = {
        {R"({"firstname":"Ada","lastname":"Moor"})", UserIdentity{"Ada", "Moor"}},
        {R"( { "lastname" : "", "other": [], "firstname" : "Zo\u00eb" } )",
            UserIdentity{"Zo\u00eb", ""}},
        {R"({"firstname":"Ada"})", none},
        {R"({"firstname":"Ada","lastname":null})", none},
        {R"({"firstname":5,"lastname":"Moor"})", none},
        {R"({"Firstname":"Ada","Lastname":"Moor"})", none},
        {R"(["Ada","Moor"])", none},
        {R"("Ada")", none},
        {"null", none},
        {"not JSON", none},
        {"", none},
        {"{\"firstname\":\"\xff\",\"lastname\":\"\"}", none},
    };
    for (const auto& [json, identity] : cases)
        EXPECT_EQ(UserIdentity::decoded(dataOf(json)), identity) << json;
}

TEST(UserIdentity, comesBackFromItsStoredForm)
{
    for (const auto& identity :
        {UserIdentity{"", ""}, UserIdentity{"A\"d\\a", "\n\u2028\U0001F697"}}) {
        const auto data = identity.encoded();
        ASSERT_TRUE(data);
        EXPECT_EQ(UserIdentity::decoded(*data), identity);
    }
    EXPECT_FALSE((UserIdentity{"\xff", ""}.encoded()));
}
