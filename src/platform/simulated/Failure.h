#pragma once

#include <functional>
#include <string>

namespace simulated {

// Called when the stand-in is used in a way that the test has not prepared or that the real
// platform would not bear. Without a handler it writes the message to stderr and aborts.
using FailureHandler = std::function<void(const std::string& message)>;

void setFailureHandler(FailureHandler handler);

void fail(const std::string& message);

} // namespace simulated
