#include "platform/foundation/FileName.h"

#include "platform/foundation/Unicode.h"

#include <gtest/gtest.h>

using platform::safeFileName;

namespace {

std::string times(std::size_t count, const std::string& text)
{
    std::string result;
    while (count-- > 0)
        result += text;
    return result;
}

} // namespace

TEST(FileName, becomesOneVisibleName)
{
    const std::pair<std::string, std::string> cases[] = {
        {"velmaro_data.csv", "velmaro_data.csv"},
        {"", "download"},
        {" . . ", "download"},
        {".hidden.csv", "hidden.csv"},
        {"../../etc/x.csv", "_.._etc_x.csv"},
        {"C:\\data.csv", "C:\\data.csv"},
        {"a\nb\r\tc\x01\x7f.csv", "a_b__c__.csv"},
        {std::string("a\0b", 3), "a_b"},
        {"a\u2028b\u2029\u0085c", "a_b__c"},
        {"velmaro_\u202evsc.desktop", "velmaro__vsc.desktop"},
        {"cafe\u0301.csv", "cafe\u0301.csv"},
        {"caf\xe9.csv", "caf\u00e9.csv"},
        {"\U0001F697.csv", "\U0001F697.csv"},
        {times(400, "a") + ".csv", times(236, "a") + ".csv"},
        {times(237, "a") + "\u3000b", times(237, "a")},
        {times(200, "\u00e4") + ".csv", times(118, "\u00e4") + ".csv"},
        {"b" + times(200, "\u00e4") + ".csv", "b" + times(117, "\u00e4") + ".csv"},
        {"a." + times(300, "b"), "a." + times(238, "b")},
    };
    for (const auto& [suggestion, name] : cases)
        EXPECT_EQ(safeFileName(suggestion), name) << suggestion;
}
