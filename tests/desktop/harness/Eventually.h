#pragma once

#include <chrono>
#include <functional>

namespace desktop {

// Longer than anything on a busy machine may take: tests end early when a condition comes true, and
// never wait for a fixed time.
constexpr auto generousLimit = std::chrono::seconds(30);

// Waits until `condition`, which is looked at with pauses in between, holds and returns true; or
// false when it has not held before `limit` is over.
[[nodiscard]] bool eventually(const std::function<bool()>& condition,
    std::chrono::milliseconds limit = generousLimit,
    std::chrono::milliseconds pause = std::chrono::milliseconds(20));

} // namespace desktop
