#pragma once

#include <memory>

namespace platform {

class SPUUpdater;

// An updater with the framework's own windows, which need nothing of the application. While it
// lives it may ask the user whether it may look for newer versions by itself, and do so. It belongs
// to its caller, and its work ends with it. Main thread only.
class SPUStandardUpdaterController {
public:
    // Whether it begins its work there and then. There are no delegates.
    static std::shared_ptr<SPUStandardUpdaterController> make(bool startingUpdater);

    virtual ~SPUStandardUpdaterController() = default;

    virtual SPUUpdater& updater() = 0;

    // Looks for a newer version because the user wants to know, and shows what comes of it. While
    // something of an earlier check is on the screen, that comes forward instead.
    virtual void checkForUpdates() = 0;
};

} // namespace platform
