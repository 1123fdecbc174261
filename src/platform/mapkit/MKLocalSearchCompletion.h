#pragma once

#include <memory>
#include <string>
#include <vector>

namespace platform {

// A suggestion for what the user is typing. Made by a completer; searches take it back to find the
// place that it stands for. It never changes, and lives as long as it is held.
class MKLocalSearchCompletion {
public:
    MKLocalSearchCompletion(std::string title, std::string subtitle)
        : title(std::move(title))
        , subtitle(std::move(subtitle))
    {
    }
    virtual ~MKLocalSearchCompletion() = default;

    MKLocalSearchCompletion(const MKLocalSearchCompletion&) = delete;
    MKLocalSearchCompletion& operator=(const MKLocalSearchCompletion&) = delete;

    const std::string title; // the place, or the first line of its address
    const std::string subtitle; // what tells it from others of that title; may be empty
};

// Best first. No two have both texts in common.
using MKLocalSearchCompletions = std::vector<std::shared_ptr<const MKLocalSearchCompletion>>;

} // namespace platform
