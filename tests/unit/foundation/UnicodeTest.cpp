#include "platform/foundation/Unicode.h"

#include <gtest/gtest.h>

using platform::trimmingWhitespace;

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
