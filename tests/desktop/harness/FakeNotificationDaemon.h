#pragma once

#include "FakeService.h"

#include <cstdint>
#include <map>

namespace desktop {

// The notification service on the private session bus. It records what it shows and can be clicked.
class FakeNotificationDaemon final : public FakeService {
public:
    enum class Manner {
        showsMarkup, // in the body
        showsPlainText,
        refuses,
    };

    struct Notification {
        std::uint32_t number = 0;
        std::uint32_t replaced = 0; // the number of the one that it takes the place of; 0: none
        std::string title;
        std::string body;
        std::vector<std::string> actions;
        std::map<std::string, std::string> hints; // as text

        bool operator==(const Notification&) const = default;
    };

    explicit FakeNotificationDaemon(Manner manner = Manner::showsMarkup);
    ~FakeNotificationDaemon() override { stop(); }

    // All that it was asked to show, oldest first.
    std::vector<Notification> shown() const;

    // The user clicks the notification; it goes away.
    void click(std::uint32_t number);

    // The notification leaves the screen by itself.
    void expire(std::uint32_t number);

private:
    void registerObjects() override;
    void handle(
        const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation) override;
    std::uint32_t show(GVariant* arguments);
    void tell(const char* signal, GVariant* values);

    const Manner manner_;
    mutable std::mutex mutex_; // guards what is shown
    std::vector<Notification> shown_;
    std::uint32_t lastNumber_ = 40;
};

} // namespace desktop
