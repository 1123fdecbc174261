#pragma once

#include "platform/webkit/WKWebView.h"

#include <vector>

namespace gtk {

// Who wants to know of which property of a web view.
class PropertyObservers {
public:
    using Property = platform::WKWebView::Property;

    // Calls `handler` at once, then for every `notify`, for as long as the observation lives.
    platform::WKWebView::Observation add(Property property, std::function<void()> handler);

    // Handlers may add and drop observations, and destroy this.
    void notify(Property property);

private:
    struct Observer {
        Property property;
        std::weak_ptr<std::function<void()>> handler;
    };

    std::vector<Observer> observers_;
};

} // namespace gtk
