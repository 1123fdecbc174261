#pragma once

#include "platform/ui/View.h"
#include "platform/ui/Widget.h"

#include <memory>
#include <vector>

namespace ui {

class Slot;

// A view tree that is shown in a window. It keeps widgets and state in step with what the bodies
// describe: however many fields are written in one turn of the main loop, the components that have
// read them are redrawn once, and no others.
class Mount {
public:
    // Shows `content` as the only child of `container`. Renderer and container must outlive the
    // mount.
    Mount(View content, Renderer& renderer, Widget& container);
    ~Mount();

    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;

    // Hands `url` to every view that opens addresses.
    void openURL(const platform::URL& url);

    // Redraws at once what has changed, rather than at the end of the turn.
    void flush();

private:
    friend class Slot;

    void schedule(Slot& slot);
    void forget(Slot& slot);

    Renderer& renderer_;
    std::vector<Slot*> changed_;
    std::shared_ptr<Mount*> self_; // told to late redraws; null inside when the mount has gone
    std::shared_ptr<Slot> root_;
};

} // namespace ui
