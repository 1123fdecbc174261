#pragma once

#include "platform/foundation/NSError.h"

namespace platform {

class MKLocalSearchCompleter;

// Hears from a search completer, which does not own it. Called on the main thread, never from
// inside a call of the completer's. It may drop the completer.
class MKLocalSearchCompleterDelegate {
public:
    // The results belong to the query fragment as it is now.
    virtual void completerDidUpdateResults(MKLocalSearchCompleter& completer) = 0;

    // There are no results for the query fragment as it is now.
    virtual void completerDidFailWithError(
        MKLocalSearchCompleter& completer, const NSError& error) = 0;

protected:
    ~MKLocalSearchCompleterDelegate() = default;
};

} // namespace platform
