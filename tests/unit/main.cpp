#include "platform/simulated/Failure.h"

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    simulated::setFailureHandler([](const auto& message) { ADD_FAILURE() << message; });
    return RUN_ALL_TESTS();
}
