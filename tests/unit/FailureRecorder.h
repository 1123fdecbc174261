#pragma once

#include "platform/simulated/Failure.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

// Collects what the stand-in complains about, for tests that provoke it; elsewhere a complaint
// fails the test.
struct FailureRecorder {
    FailureRecorder()
    {
        simulated::setFailureHandler([this](const auto& message) { messages.push_back(message); });
    }
    ~FailureRecorder()
    {
        simulated::setFailureHandler([](const auto& message) { ADD_FAILURE() << message; });
    }

    std::vector<std::string> messages;
};
