#pragma once

#include "platform/mapkit/MKLocalSearchCompletion.h"

#include <cstdint>

namespace platform {

class MKLocalSearchCompleterDelegate;

// Suggests addresses and places while the user types. The platform makes one for each owner. Main
// thread only; nothing waits for the network.
class MKLocalSearchCompleter {
public:
    // Bits of `resultTypes`.
    static constexpr std::uint32_t address = 1;
    static constexpr std::uint32_t pointOfInterest = 2;

    virtual ~MKLocalSearchCompleter() = default;

    // Must outlive the completer or be taken away with null.
    virtual void setDelegate(MKLocalSearchCompleterDelegate* delegate) = 0;

    // What to suggest; at first everything.
    virtual std::uint32_t resultTypes() const = 0;
    virtual void setResultTypes(std::uint32_t types) = 0;

    // The text typed so far. Setting it asks for suggestions, and what was asked before is
    // forgotten: the delegate hears about the last text only, unless the next one follows too soon.
    // A blank text has no suggestions.
    virtual const std::string& queryFragment() const = 0;
    virtual void setQueryFragment(std::string fragment) = 0;

    // As last told to the delegate; empty after a failure.
    virtual const MKLocalSearchCompletions& results() const = 0;
};

} // namespace platform
