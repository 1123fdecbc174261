#include "FakeNotificationDaemon.h"

namespace desktop {

namespace {

constexpr auto name = "org.freedesktop.Notifications";

} // namespace

FakeNotificationDaemon::FakeNotificationDaemon(Manner manner)
    : service_(G_BUS_TYPE_SESSION, name,
        {
            {"GetCapabilities",
                FakeService::answering(manner == Manner::showsMarkup
                        ? "(['body', 'actions', 'persistence', 'body-markup'],)"
                        : "(['body', 'actions', 'persistence'],)")},
            {"Notify",
                [this](const auto& call) {
                    call.answer(g_variant_new("(u)", shown().back().number));
                }},
        })
{
}

std::vector<FakeNotificationDaemon::Notification> FakeNotificationDaemon::shown() const
{
    std::vector<Notification> result;
    std::uint32_t lastNumber = 40;
    for (const auto& call : service_.calls()) {
        if (call.method != "Notify")
            continue;
        Notification shown;
        const char *title = nullptr, *body = nullptr;
        g_autoptr(GVariant) hints = nullptr;
        g_variant_get(call.arguments.get(), "(&su&s&s&s@as@a{sv}i)", nullptr, &shown.replaced,
            nullptr, &title, &body, nullptr, &hints, nullptr);
        g_autofree char* hintsText = g_variant_print(hints, FALSE);
        shown.number = shown.replaced ? shown.replaced : ++lastNumber;
        shown.title = title, shown.body = body;
        shown.hints = hintsText;
        result.push_back(shown);
    }
    return result;
}

void FakeNotificationDaemon::click(std::uint32_t number)
{
    constexpr std::uint32_t wasDismissed = 2;
    tell("ActivationToken", g_variant_new("(us)", number, "token"));
    tell("ActionInvoked", g_variant_new("(us)", number, "default"));
    tell("NotificationClosed", g_variant_new("(uu)", number, wasDismissed));
}

void FakeNotificationDaemon::tell(const char* signal, GVariant* values)
{
    service_.emit("/org/freedesktop/Notifications", name, signal, values);
}

} // namespace desktop
