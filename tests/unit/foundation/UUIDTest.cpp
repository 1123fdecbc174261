#include "platform/foundation/UUID.h"

#include <gtest/gtest.h>

using platform::UUID;

TEST(UUID, isRandomAndReadsItsOwnTextInEitherCase)
{
    const UUID id;
    EXPECT_NE(id, UUID());
    EXPECT_EQ(UUID::fromString(id.string()), id);
    EXPECT_EQ(UUID::fromString("0123abcd-89EF-4a5b-8c6d-7e8f90a1b2c3")->string(),
        "0123ABCD-89EF-4A5B-8C6D-7E8F90A1B2C3");
}

TEST(UUID, refusesEverythingElse)
{
    for (const auto* text : {"", "0123abcd-89ef-4a5b-8c6d-7e8f90a1b2c34",
             "0123abcd-89ef-4a5b-8c6d-7e8f90a1b2cg", "0123abcd-89ef4-a5b-8c6d-7e8f90a1b2c3"})
        EXPECT_FALSE(UUID::fromString(text)) << text;
}
