#pragma once

namespace platform {

// Finds newer versions of the application. Its controller owns it. Main thread only.
class SPUUpdater {
public:
    virtual ~SPUUpdater() = default;

    // Whether the user can ask for a check now. False in a build that does not know where to look.
    virtual bool canCheckForUpdates() const = 0;
};

} // namespace platform
