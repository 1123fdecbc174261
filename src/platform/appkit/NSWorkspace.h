#pragma once

#include "platform/foundation/URL.h"

#include <vector>

namespace platform {

// The rest of the desktop: its programs and its file manager. The platform owns it. Main thread
// only; no call waits for what it starts.
class NSWorkspace {
public:
    static NSWorkspace& shared();

    virtual ~NSWorkspace() = default;

    // Hands the address to the program that the user chose for addresses of its kind, which comes
    // forward. Returns at once; an address that no program takes is logged and dropped.
    virtual void open(const URL& url) = 0;

    // Opens a window of the file manager with these files selected; where the file manager cannot
    // select, their folder. Addresses of other schemes than "file" are left out.
    virtual void activateFileViewerSelecting(const std::vector<URL>& files) = 0;
};

} // namespace platform
