#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Lifetime.h"

#include <cstdint>
#include <functional>

namespace gtk {

// Waits for the first picture of a page on the screen, and notices when it does not come although
// everything else does. It looks once a second, from the first second of the program until there is
// such a picture or it has given up.
//
// Time counts only while pictures of the window keep coming: a window that is out of sight is not
// painted, and a slow one is painted less often, so the page may yet appear in it.
class PageWatch {
public:
    struct Sight {
        bool isWindowVisible = false; // as far as the window manager tells: not minimized
        std::int64_t windowFrames = 0; // painted until now
        bool isPageLoaded = false; // the one in front, to its end, in a process that answers
        bool hasPageFrame = false; // what was painted last shows that page
    };

    struct Handlers {
        // Should ask for another frame of the window, too.
        std::function<Sight()> look;

        // A page is on the screen.
        std::function<void()> appeared;

        // A page has been loaded, the window is painted again and again, and the page is not in it.
        std::function<void()> missing;
    };

    static constexpr int patience = 8; // seconds

    // One of the two handlers is called, once, in a task of `queue`.
    PageWatch(platform::DispatchQueue& queue, Handlers handlers);

    // Whether the window has been there for a while and has never been painted.
    bool isWindowMissing() const { return secondsWithoutWindow_ >= patience; }

private:
    void checkLater();
    void check();

    platform::DispatchQueue& queue_;
    const Handlers handlers_;
    std::int64_t windowFrames_ = 0;
    int secondsWithoutWindow_ = 0;
    int secondsWithoutPage_ = 0;
    platform::Lifetime lifetime_;
};

} // namespace gtk
