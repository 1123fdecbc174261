#include "platform/gtk/webkit/ProcessSharing.h"

#include <algorithm>

namespace gtk {

WebKitWebView* ProcessSharing::companion() const
{
    const auto group = std::ranges::find_if(groups_, [](const auto& group) {
        return group.views.size() < mostViews && group.viewsEver < mostViewsEver;
    });
    return group == groups_.end() ? nullptr : group->views.front();
}

void ProcessSharing::add(WebKitWebView* view, WebKitWebView* companion)
{
    const auto group = std::ranges::find_if(groups_, [companion](const auto& group) {
        return std::ranges::find(group.views, companion) != group.views.end();
    });
    if (group == groups_.end()) {
        groups_.push_back({.views = {view}});
        return;
    }
    group->views.push_back(view);
    ++group->viewsEver;
}

void ProcessSharing::remove(WebKitWebView* view)
{
    for (auto& group : groups_)
        std::erase(group.views, view);
    std::erase_if(groups_, [](const auto& group) { return group.views.empty(); });
}

void ProcessSharing::processDied(WebKitWebView* view)
{
    std::erase_if(groups_, [view](const auto& group) {
        return std::ranges::find(group.views, view) != group.views.end();
    });
}

} // namespace gtk
