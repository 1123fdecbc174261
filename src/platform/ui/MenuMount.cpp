#include "platform/ui/MenuMount.h"

#include "platform/foundation/DispatchQueue.h"

#include <utility>

namespace ui {

MenuMount::MenuMount(const Scene& scene, Show show)
    : scene_(scene)
    , show_(std::move(show))
{
    describe();
}

void MenuMount::subjectChanged()
{
    if (std::exchange(hasChanged_, true))
        return;
    platform::DispatchQueue::main().async(lifetime_.guard([this] { describe(); }));
}

void MenuMount::describe()
{
    hasChanged_ = false;
    std::vector<CommandGroup> groups;
    track([&] {
        if (scene_.commands)
            groups = scene_.commands();
    });
    show_(menuBar(scene_.title, groups));
}

} // namespace ui
