#pragma once

#include "data/Collection.h"

#include <map>
#include <string>
#include <string_view>

namespace demo {

/// Everything that the demo account holds, in memory, the same at every start.
class DemoData {
public:
    DemoData();

    /// The collection of this name, or null: "drives", "vehicles", "drivers", "fuel", "charging",
    /// "account-groups" or "tickets".
    Collection* find(std::string_view name);
    const Collection* find(std::string_view name) const;

    /// The collection of a name that is known to exist.
    const Collection& at(std::string_view name) const;

    const std::map<std::string, Collection, std::less<>>& collections() const
    {
        return collections_;
    }

private:
    std::map<std::string, Collection, std::less<>> collections_;
};

} // namespace demo
