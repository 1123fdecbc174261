#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Observation.h"
#include "platform/ui/Scene.h"

#include <functional>
#include <memory>

namespace ui {

// The menus of a scene, kept in step with what its commands describe: however many fields are
// written in one turn of the main loop, they are described once more, and only when one of those
// has been read. Main thread only.
class MenuMount final : public Observer {
public:
    using Show = std::function<void(std::vector<Menu>)>;

    // Calls `show` at once and after each change. `scene` must outlive this.
    MenuMount(const Scene& scene, Show show);

private:
    void subjectChanged() override;
    void describe();

    const Scene& scene_;
    const Show show_;
    bool hasChanged_ = false;
    platform::Lifetime lifetime_;
};

} // namespace ui
