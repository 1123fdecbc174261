#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/ui/Published.h"
#include "platform/ui/State.h"
#include "platform/ui/View.h"

#include <functional>
#include <memory>

namespace ui {

// The first idle moment since it was made.
class IdleMoment {
public:
    static std::shared_ptr<IdleMoment> make()
    {
        auto moment = std::make_shared<IdleMoment>();
        platform::DispatchQueue::main().asyncWhenIdle([weakMoment = std::weak_ptr(moment)] {
            if (const auto moment = weakMoment.lock())
                moment->hasCome = true;
        });
        return moment;
    }

    Published<bool> hasCome = false;
};

// A view that is not worth keeping the user waiting for: `placeholder` until the program has a
// moment for `content`, except while that is wanted now.
struct Deferred {
    bool isWantedNow = false;
    View placeholder;
    std::function<View()> content;
    StateObject<IdleMoment> moment = {};

    auto state() { return std::tie(moment); }

    View body() const { return isWantedNow || moment()->hasCome() ? content() : placeholder; }
};

} // namespace ui
