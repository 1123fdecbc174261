#pragma once

#include "platform/gtk/foundation/ObjectPointer.h"

#include <webkit/webkit.h>

namespace gtk {

// A question of the engine that is answered once. One that nobody answers is refused in the end;
// the engine would take it for allowed.
class PendingDecision {
public:
    explicit PendingDecision(WebKitPolicyDecision* decision)
        : decision_(retain(decision))
    {
    }
    ~PendingDecision() { refuse(); }

    PendingDecision(const PendingDecision&) = delete;
    PendingDecision& operator=(const PendingDecision&) = delete;

    // The first of these counts.
    void allow() { answer(webkit_policy_decision_use); }
    void download() { answer(webkit_policy_decision_download); }
    void refuse() { answer(webkit_policy_decision_ignore); }

private:
    void answer(void (*choose)(WebKitPolicyDecision*))
    {
        if (const auto decision = std::move(decision_))
            choose(decision.get());
    }

    ObjectPointer<WebKitPolicyDecision> decision_; // null once it is answered
};

} // namespace gtk
