#include "platform/foundation/UUID.h"

#include <gtest/gtest.h>
#include <set>

using platform::UUID;

TEST(UUID, isRandomAndReadsItsOwnText)
{
    std::set<std::string> texts;
    for (int i = 0; i < 1000; ++i) {
        const UUID id;
        const auto text = id.string();
        texts.insert(text);
        EXPECT_EQ(UUID::fromString(text), id);
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
    }
    EXPECT_EQ(texts.size(), 1000u);
}

TEST(UUID, readsEitherCaseAndWritesUpperCase)
{
    const auto id = UUID::fromString("0123abcd-89EF-4a5b-8c6d-7e8f90a1b2c3");
    ASSERT_TRUE(id);
    EXPECT_EQ(id->string(), "0123ABCD-89EF-4A5B-8C6D-7E8F90A1B2C3");
}

TEST(UUID, refusesEverythingElse)
{
    for (const auto* text :
        {"", "0123abcd-89ef-4a5b-8c6d-7e8f90a1b2c", "0123abcd-89ef-4a5b-8c6d-7e8f90a1b2c34",
            "0123abcd89ef4a5b8c6d7e8f90a1b2c3", "0123abcd-89ef-4a5b-8c6d-7e8f90a1b2cg",
            "0123abcd-89ef4-a5b-8c6d-7e8f90a1b2c3", "{0123abcd-89ef-4a5b-8c6d-7e8f90a1b2}"})
        EXPECT_FALSE(UUID::fromString(text)) << text;
}
