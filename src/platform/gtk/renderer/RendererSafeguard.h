#pragma once

#include "platform/gtk/foundation/GtkUserDefaults.h"
#include "platform/gtk/foundation/StandardPaths.h"
#include "platform/gtk/renderer/PageWatch.h"
#include "platform/gtk/renderer/RendererChoice.h"
#include "platform/gtk/renderer/StartMarker.h"

namespace platform {
class NSWindow;
}

namespace gtk {

class WebEngine;

// Sees to it that a broken graphics driver does not keep the user from their pages: chooses what
// draws, and offers once to go on without the graphics processor. There are two signs that this
// may help. Either the program ended, in a crash or killed, before a page was on the screen: then
// the next start draws in software and asks there, where the question can be seen. Or a page has
// been loaded and does not come to the screen while the rest of the window does: then the question
// can be seen at once.
//
// The answer is kept in "rendering.json"; nothing is asked where there is one, where the user's
// environment decides, or where there is no graphics processor.
class RendererSafeguard {
public:
    // Chooses, and tells toolkit and engine. To be made before the toolkit starts, while there is
    // one thread; `queue` must outlive this.
    RendererSafeguard(const StandardPaths& paths, platform::DispatchQueue& queue);
    ~RendererSafeguard();

    RendererChoice choice() const { return choice_; }

    // The start is under way, and drivers will be called from now on.
    void begin();

    // The program has a window, which `window` gives as long as it is there, for pages of `engine`.
    void watch(std::function<platform::NSWindow*()> window, WebEngine& engine);

    // The program ends in good order. Returns when the answer is on the disk.
    void end();

    // Whether the user would like the program to be started again when it has ended.
    bool wantsRestart() const { return wantsRestart_; }

private:
    void askAfterFailedStart();
    void askAboutMissingPage();
    void remember(bool usesGraphicsProcessor);

    platform::DispatchQueue& queue_;
    GtkUserDefaults memory_;
    StartMarker marker_;
    const RendererChoice choice_;
    std::unique_ptr<PageWatch> guard_; // while a page has yet to appear
    bool wantsRestart_ = false;
};

} // namespace gtk
