#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/gtk/foundation/Timer.h"

#include <deque>
#include <string>

namespace gtk {

// Hands addresses to the programs that the user chose for addresses of their kind. It does so one
// after the other, and only while there is nothing else to do: a page that names a thousand foreign
// addresses at once neither freezes the window nor starts a thousand programs at the same time.
class AddressLauncher {
public:
    // Returns at once. What cannot be opened is logged and dropped.
    void launch(std::string address);

private:
    void launchNextWhenIdle();
    void launchNext();
    void goOn();

    std::deque<std::string> waiting_;
    bool isLaunching_ = false;
    bool hasDropped_ = false; // an address, since the queue was last empty
    unsigned attempt_ = 0; // the number of the current launch
    Timer patience_;
    platform::Lifetime lifetime_;
};

} // namespace gtk
