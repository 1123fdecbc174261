#include "Eventually.h"

#include <thread>

namespace desktop {

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit,
    std::chrono::milliseconds pause)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(pause);
    }
    return true;
}

} // namespace desktop
