#include "platform/foundation/Unicode.h"

#include <gtest/gtest.h>

using platform::isCanonicallyEquivalent;
using platform::trimmingWhitespace;
using namespace std::string_view_literals;

TEST(Unicode, composedAndDecomposedLettersAreEqual)
{
    struct Case {
        std::string_view left;
        std::string_view right;
        bool isEqual;
    };
    const Case cases[] = {
        {"Zo\u00eb", "Zoe\u0308", true},
        {"\u1e69", "s\u0307\u0323", true}, // marks in either order
        {"\u212b", "\u00c5", true}, // the unit and the letter
        {"zoe", "Zoe", false},
        {"\ufb01", "fi", false}, // compatible, not canonical
        {"a\0\u00eb"sv, "a\0e\u0308"sv, true},
        {"\xff", "\xff", true},
        {"\xff", "\xfe", false},
    };
    for (const auto& [left, right, isEqual] : cases) {
        EXPECT_EQ(isCanonicallyEquivalent(left, right), isEqual) << left << " " << right;
        EXPECT_EQ(isCanonicallyEquivalent(right, left), isEqual) << right << " " << left;
    }
}

TEST(Unicode, trimsBlanksAndTabsButNoLineBreaks)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {" \t drives\t ", "drives"},
        {"account groups", "account groups"},
        {"\u00a0drives\u3000", "drives"},
        {"\ndrives\n", "\ndrives\n"},
    };
    for (const auto& [text, trimmed] : cases)
        EXPECT_EQ(trimmingWhitespace(text), trimmed) << '"' << text << '"';
}
