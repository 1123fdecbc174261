#include "platform/foundation/NotificationCenter.h"

#include "platform/Platform.h"

namespace platform {

NotificationCenter& NotificationCenter::defaultCenter()
{
    return Platform::current().shared<NotificationCenter>();
}

NotificationCenter::Observer NotificationCenter::addObserver(
    std::string name, const void* sender, Handler handler)
{
    auto registration =
        std::make_shared<Registration>(Registration{std::move(name), sender, std::move(handler)});
    registrations_.push_back(registration);
    return registration;
}

void NotificationCenter::post(const std::string& name, const void* sender)
{
    std::erase_if(registrations_, [](const auto& registration) { return registration.expired(); });

    const auto registrations = registrations_; // handlers may register and leave
    for (const auto& weakRegistration : registrations) {
        const auto registration = weakRegistration.lock();
        if (!registration || registration->name != name)
            continue;
        if (!registration->sender || registration->sender == sender)
            registration->handler({name, sender});
    }
}

} // namespace platform
