#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/ui/FocusedValues.h"
#include "platform/ui/View.h"
#include "platform/ui/Widget.h"

#include <memory>
#include <vector>

namespace ui {

class Slot;

// A view tree that is shown in a window. It keeps widgets and state in step with what the bodies
// describe: however many fields are written in one turn of the main loop, the components that have
// read them are redrawn once, and no others. The window owns it. Main thread only.
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

    // What the views publish for the menus. It outlives the mount, empty then.
    const std::shared_ptr<Published<FocusedValues>>& focusedValues() const
    {
        return focusedValues_;
    }

    // Redraws at once what has changed, rather than at the end of the turn.
    void flush();

private:
    friend class Slot;

    void schedule(Slot& slot);
    void forget(Slot& slot);

    // `slot` publishes these values, in place of those before.
    void publish(const Slot& slot, const FocusedValues& values);

    // `slot` goes, and its values with it.
    void withdraw(const Slot& slot);

    Renderer& renderer_;
    std::vector<Slot*> changed_;
    const Slot* publisher_ = nullptr; // of the focused values; identity only
    const std::shared_ptr<Published<FocusedValues>> focusedValues_ =
        std::make_shared<Published<FocusedValues>>();
    std::shared_ptr<Slot> root_;
    platform::Lifetime lifetime_;
};

} // namespace ui
