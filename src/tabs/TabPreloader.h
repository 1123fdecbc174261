#pragma once

#include "platform/ui/Observation.h"
#include "web/WebModel.h"

#include <memory>
#include <optional>

namespace velmaro {

class TabbedAppModel;

// Loads a few of the restored tabs before the user looks at them, so that they have their titles
// and switching to them is instant. It begins when the start is over, goes from the active tab
// outwards, one page after the other, and only while there is memory to spare.
class TabPreloader : public std::enable_shared_from_this<TabPreloader> {
public:
    static constexpr int mostLiveTabs = 4; // those that the user has opened included
    static constexpr double pause = 1; // seconds between two pages
    static constexpr std::uint64_t spareMemory = std::uint64_t(1) << 30; // bytes, left to others

    explicit TabPreloader(std::weak_ptr<TabbedAppModel> app)
        : app_(std::move(app))
    {
    }

    void start();

private:
    void loadNext();
    void watch(const std::shared_ptr<WebModel>& tab);
    void continueWhenLoaded();

    const std::weak_ptr<TabbedAppModel> app_;
    std::weak_ptr<WebModel> loading_;
    std::optional<ui::Observation> observation_; // of the tab that is loading
};

} // namespace velmaro
