#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Lifetime.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace gtk {

// Whether the user lets the application do something. Desktops leave such questions to programs
// that run outside a sandbox, so each is asked here, once, and the answer is kept.
class Permission {
public:
    // Puts the question to the user and calls `answer` once they have decided, there and then or
    // later. Until then, and for good if it is never called, nothing is decided.
    using Prompt = std::function<void(std::function<void(bool isAllowed)> answer)>;

    // Asks in an alert of the current platform. Closing it means no.
    static void ask(const std::string& question, const std::string& explanation,
        std::function<void(bool isAllowed)> answer);

    // The question is put in a task of `queue`, the answer kept in `store` under `key`. Both must
    // outlive this.
    Permission(platform::DispatchQueue& queue, platform::UserDefaults& store, std::string key,
        Prompt prompt);

    // Absent until the user has decided.
    std::optional<bool> isAllowed() const;

    // Asks, unless the user has decided or is being asked.
    void request();

    // The user decides without having been asked, or has changed their mind.
    void decide(bool isAllowed);

    // Calls `handler` after each decision.
    [[nodiscard]] platform::NotificationCenter::Observer observe(std::function<void()> handler);

private:
    void prompt();

    platform::DispatchQueue& queue_;
    platform::UserDefaults& store_;
    const std::string key_;
    const Prompt prompt_;
    bool isAsking_ = false;
    platform::NotificationCenter changes_;
    platform::Lifetime lifetime_;
};

} // namespace gtk
