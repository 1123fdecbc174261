#pragma once

#include "platform/foundation/Data.h"

#include <optional>
#include <string>

namespace velmaro {

// The signed-in user's names, either of which may be empty.
struct UserIdentity {
    std::string firstname;
    std::string lastname;

    // Reads what `encoded` wrote: a JSON object with both names. Absent when it is anything else.
    static std::optional<UserIdentity> decoded(const platform::Data& data);

    // UTF-8 JSON; absent when a name is not UTF-8.
    std::optional<platform::Data> encoded() const;

    // Case-sensitive, under Unicode canonical equivalence.
    bool operator==(const UserIdentity& other) const;
};

} // namespace velmaro
