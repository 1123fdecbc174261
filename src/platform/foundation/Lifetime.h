#pragma once

#include <memory>
#include <utility>

namespace platform {

// Tells callbacks that come late whether the object that they belong to is still there. A member of
// that object, declared last, so that it goes first. Made and destroyed on the main thread, where
// the callbacks are called, too; they may be carried there by another thread.
class Lifetime {
public:
    Lifetime() = default;
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    // Returns a function that calls `callback` as long as the object is there, and does nothing
    // afterwards. `callback` may destroy the object.
    template <class Callback> auto guard(Callback callback) const
    {
        return [life = std::weak_ptr(life_), callback = std::move(callback)](
                   auto&&... arguments) mutable {
            if (!life.expired())
                callback(std::forward<decltype(arguments)>(arguments)...);
        };
    }

private:
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace platform
