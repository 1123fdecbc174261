#pragma once

#include "platform/foundation/NotificationCenter.h"
#include "platform/ui/Published.h"
#include "web/WebModel.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmaro {

class TabPreloader;

// The window's open tabs and which of them is shown. Main thread only.
class TabbedAppModel : public std::enable_shared_from_this<TabbedAppModel> {
public:
    using Tabs = std::vector<std::shared_ptr<WebModel>>;

    // The model made last; null when it has gone. For callers without a view, such as page bridges.
    static std::shared_ptr<TabbedAppModel> shared();

    // Restores the tabs of the last run, and saves them when the application terminates.
    static std::shared_ptr<TabbedAppModel> make();

    // Left to right; never empty.
    ui::Published<Tabs> tabs;

    // Index of the tab that is shown; any value outside the list means that no tab is.
    ui::Published<int> activeIndex = 0;

    // Null when no tab is active.
    std::shared_ptr<WebModel> activeTab() const;

    // Opens a tab at the end and shows it; without a route, on the service's page for new tabs.
    void newTab(const std::optional<std::string>& route = std::nullopt);

    // Closes the tab at `index`, or the window when it is the only one. The active index is
    // clamped, not shifted.
    void closeTab(int index);

    void nextTab();
    void previousTab();

    // Moves the dragged tab to just in front of the target, or to the end when the target is
    // unknown. The same tab stays active.
    void moveTab(const platform::UUID& draggedId, const platform::UUID& targetId);

    // Drops every tab but the active one.
    void keepOnlyActiveTab();

    // Whether a tab was closed that can come back.
    bool canReopenTab() const { return !closedTabs_().empty(); }

    // Brings the tab closed last back to where it was, on the route that it showed, and shows it.
    void reopenClosedTab();

    // Asks the user, and then forgets everything that is kept on this computer for the service, but
    // for the identity, which goes when the page tells. In the end there is one tab, on the welcome
    // page.
    void clearAllCache();

    void handleAppWillTerminate(const platform::Notification& notification);

private:
    struct ClosedTab {
        std::string route; // empty: the start page
        int index = 0; // where it was
    };
    using ClosedTabs = std::vector<ClosedTab>; // the one closed last stands last

    TabbedAppModel();

    void noteClosedTab(int index);
    void forgetEverything();
    void startAfresh();
    int count() const { return static_cast<int>(tabs().size()); }

    ui::Published<ClosedTabs> closedTabs_;
    int clearings_ = 0; // of all data, that were begun
    platform::NotificationCenter::Observer terminationObserver_;
    std::shared_ptr<TabPreloader> preloader_;
};

} // namespace velmaro
