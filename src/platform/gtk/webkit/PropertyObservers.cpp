#include "platform/gtk/webkit/PropertyObservers.h"

namespace gtk {

platform::WKWebView::Observation PropertyObservers::add(
    Property property, std::function<void()> handler)
{
    const auto kept = std::make_shared<std::function<void()>>(std::move(handler));
    observers_.push_back({property, kept});
    (*kept)();
    return kept;
}

void PropertyObservers::notify(Property property)
{
    std::erase_if(observers_, [](const auto& observer) { return observer.handler.expired(); });
    const auto observers = observers_;
    for (const auto& observer : observers) {
        if (const auto handler = observer.property == property ? observer.handler.lock() : nullptr)
            (*handler)();
    }
}

} // namespace gtk
