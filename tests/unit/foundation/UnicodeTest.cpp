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
        {"\uac00", "\u1100\u1161", true},
        {"", "", true},
        {"Zoe", "Zo\u00eb", false},
        {"zoe", "Zoe", false},
        {"\ufb01", "fi", false}, // compatible, not canonical
        {"\u0391", "A", false}, // alike, not the same
        {"a\0b"sv, "a\0c"sv, false},
        {"a\0b"sv, "a\0b"sv, true},
        {"a\0\u00eb"sv, "a\0e\u0308"sv, true},
        {"\xff", "\xff", true},
        {"\xff", "\xfe", false},
        {"\xff", "", false},
    };
    for (const auto& [left, right, isEqual] : cases) {
        EXPECT_EQ(isCanonicallyEquivalent(left, right), isEqual) << left << " " << right;
        EXPECT_EQ(isCanonicallyEquivalent(right, left), isEqual) << right << " " << left;
    }
}

TEST(Unicode, trimsBlanksAndTabsButNoLineBreaks)
{
    struct Case {
        std::string_view text;
        std::string_view trimmed;
    };
    const Case cases[] = {
        {"drives", "drives"},
        {" \t drives\t ", "drives"},
        {"account groups", "account groups"},
        {"   ", ""},
        {"", ""},
        {"\u00a0drives\u3000", "drives"},
        {"\ndrives\n", "\ndrives\n"},
        {" \n ", "\n"},
        {"\u00e9", "\u00e9"},
    };
    for (const auto& [text, trimmed] : cases)
        EXPECT_EQ(trimmingWhitespace(text), trimmed) << '"' << text << '"';
}
