#include "platform/gtk/webkit/ProcessSharing.h"

#include <algorithm>

namespace gtk {

WebKitWebView* ProcessSharing::companion() const
{
    const auto group =
        std::ranges::find_if(groups_, [](const auto& group) { return group.size() < mostViews; });
    return group == groups_.end() ? nullptr : group->front();
}

void ProcessSharing::add(WebKitWebView* view, WebKitWebView* companion)
{
    const auto group = std::ranges::find_if(groups_, [companion](const auto& group) {
        return std::ranges::find(group, companion) != group.end();
    });
    if (group == groups_.end())
        groups_.push_back({view});
    else
        group->push_back(view);
}

void ProcessSharing::remove(WebKitWebView* view)
{
    for (auto& group : groups_)
        std::erase(group, view);
    std::erase_if(groups_, [](const auto& group) { return group.empty(); });
}

} // namespace gtk
