#pragma once

#include "FakeService.h"

#include <cstdint>

namespace desktop {

// The notification service on the private session bus. It records what it shows and can be clicked.
class FakeNotificationDaemon {
public:
    enum class Manner {
        showsMarkup, // in the body
        showsPlainText,
    };

    struct Notification {
        std::uint32_t number = 0;
        std::uint32_t replaced = 0; // the number of the one that it takes the place of, or 0
        std::string title;
        std::string body;
        std::string hints; // as GVariant prints them
    };

    explicit FakeNotificationDaemon(Manner manner = Manner::showsMarkup);

    // All that it was asked to show, oldest first.
    std::vector<Notification> shown() const;

    // The user clicks the notification; it goes away.
    void click(std::uint32_t number);

private:
    void tell(const char* signal, GVariant* values);

    FakeService service_;
};

} // namespace desktop
