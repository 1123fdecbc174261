#pragma once

#include "platform/corelocation/CLAuthorizationStatus.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"

#include <functional>
#include <memory>

namespace gtk {

// Whether the user lets the application know where they are. Desktops leave that question to
// programs that run outside a sandbox, so it is asked here, once, and the answer is kept.
class LocationPermission {
public:
    static constexpr auto key = "locationAllowed";

    // What the user is asked, and the two answers.
    static constexpr auto question = "Allow Velmaro Online to use your location?";
    static constexpr auto explanation =
        "Your location is used to find gas stations, charging stations and traffic alerts around "
        "you.";
    static constexpr auto allow = "Allow";
    static constexpr auto deny = "Don\u2019t Allow";

    // Puts the question to the user and calls `answer` once they have decided, there and then or
    // later. Until then, and for good if it is never called, the status stays what it is.
    using Prompt = std::function<void(std::function<void(bool isAllowed)> answer)>;

    // The question is put in a task of `queue`, the answer kept in `store`. Both must outlive this.
    LocationPermission(
        platform::DispatchQueue& queue, platform::UserDefaults& store, Prompt prompt);

    // Allowed means always: on the desktop there is no background to run in.
    platform::CLAuthorizationStatus status() const;

    // Asks, unless the user has decided or is being asked.
    void request();

    // Calls `handler` after each decision.
    [[nodiscard]] platform::NotificationCenter::Observer observe(std::function<void()> handler);

private:
    void ask();
    void decide(bool isAllowed);

    platform::DispatchQueue& queue_;
    platform::UserDefaults& store_;
    const Prompt prompt_;
    bool isAsking_ = false;
    platform::NotificationCenter changes_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
