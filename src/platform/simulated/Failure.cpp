#include "platform/simulated/Failure.h"

#include <cstdio>
#include <cstdlib>

namespace simulated {

namespace {

// Outlives every platform: the test program sets it once.
FailureHandler& currentHandler()
{
    static FailureHandler handler;
    return handler;
}

} // namespace

void setFailureHandler(FailureHandler handler)
{
    currentHandler() = std::move(handler);
}

void fail(const std::string& message)
{
    if (currentHandler()) {
        currentHandler()(message);
        return;
    }
    std::fprintf(stderr, "Simulated platform: %s\n", message.c_str());
    std::abort();
}

} // namespace simulated
