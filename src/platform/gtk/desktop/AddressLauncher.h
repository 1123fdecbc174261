#pragma once

#include "platform/gtk/foundation/Timer.h"

#include <deque>
#include <gio/gio.h>
#include <memory>
#include <string>

namespace gtk {

// Hands addresses to the programs that the user chose for addresses of their kind. One after the
// other, and only while there is nothing else to do: a page that names a thousand foreign addresses
// at once neither freezes the window nor starts a thousand programs at the same time.
class AddressLauncher : public std::enable_shared_from_this<AddressLauncher> {
public:
    // Returns at once. What cannot be opened is logged and dropped.
    void launch(std::string address);

private:
    void launchNextWhenIdle();
    void launchNext();
    void goOn();
    static void didLaunch(GObject*, GAsyncResult* result, gpointer attempt);

    std::deque<std::string> waiting_;
    bool isLaunching_ = false;
    bool hasDropped_ = false; // since there was room last
    unsigned attempt_ = 0; // the number of the current one
    Timer patience_;
};

} // namespace gtk
