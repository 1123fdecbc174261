#pragma once

#include "platform/foundation/Bundle.h"

#include <map>

namespace simulated {

// An application that says of itself what the test tells it to, at first nothing.
class SimulatedBundle final : public platform::Bundle {
public:
    std::optional<std::string> stringForInfoDictionaryKey(const std::string& key) const override
    {
        const auto found = infoDictionary.find(key);
        return found == infoDictionary.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::string, std::string> infoDictionary;
};

} // namespace simulated
