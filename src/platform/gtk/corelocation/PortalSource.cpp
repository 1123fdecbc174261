#include "platform/gtk/corelocation/PortalSource.h"

#include "platform/foundation/UUID.h"

#include <algorithm>
#include <cstdint>

namespace gtk {

namespace {

constexpr auto serviceName = "org.freedesktop.portal.Desktop";
constexpr auto desktopPath = "/org/freedesktop/portal/desktop";
constexpr auto locationInterface = "org.freedesktop.portal.Location";
constexpr auto requestInterface = "org.freedesktop.portal.Request";
constexpr auto sessionInterface = "org.freedesktop.portal.Session";

constexpr std::uint32_t streetLevel = 4;
constexpr std::uint32_t exactLevel = 5;
constexpr double streetAccuracy = 100; // metres

// Answers of a request.
constexpr std::uint32_t granted = 0;
constexpr std::uint32_t refusedByUser = 1;

std::string freshToken()
{
    std::string token = "velmaro";
    token += platform::UUID().string();
    std::erase(token, '-');
    return token;
}

// The path that the portal will give a request of `sender`. It can be told before the request is
// made, so that no answer is missed.
std::string requestPath(const std::string& sender, const std::string& token)
{
    auto name = sender.substr(1); // without the colon
    std::ranges::replace(name, '.', '_');
    return std::string(desktopPath) + "/request/" + name + "/" + token;
}

} // namespace

PortalSource::PortalSource(const LocationTimeouts& patience)
    : patience_(patience)
    , token_(freshToken())
    , conversation_(Gio::DBus::BusType::SESSION, serviceName,
          [this](const auto& error) { fail(failureText(error)); })
{
}

PortalSource::~PortalSource()
{
    if (!session_.empty())
        conversation_.tell({session_, sessionInterface, "Close"}, {});
}

void PortalSource::start(double accuracy, Handlers handlers)
{
    handlers_ = std::move(handlers);
    const BusDictionary options{
        {"session_handle_token", busValue(token_)},
        {"accuracy", busValue(accuracy >= streetAccuracy ? streetLevel : exactLevel)},
    };
    conversation_.call(
        {
            .method = {desktopPath, locationInterface, "CreateSession"},
            .arguments = busValues(options),
            .resultType = "(o)",
            .patience = patience_.answer,
        },
        [this](const auto& results) {
            session_ = child<BusPath>(results, 0);
            startSession();
        });
}

void PortalSource::startSession()
{
    conversation_.listen({desktopPath, locationInterface, "LocationUpdated"}, "(oa{sv})",
        [this](const auto& values) {
            if (child<BusPath>(values, 0).raw() != session_)
                return;
            const auto found = location(child<BusDictionary>(values, 1));
            if (!found)
                return;
            const auto handler = handlers_.onLocation;
            handler(*found);
        });
    conversation_.listen(
        {requestPath(conversation_.ownName(), token_), requestInterface, "Response"}, "(ua{sv})",
        [this](const auto& values) {
            const auto answer = child<guint32>(values, 0);
            if (answer != granted)
                return fail(answer == refusedByUser ? refusedText : notFoundText);
            const auto handler = handlers_.onStarted;
            handler();
        });
    // The portal may end a session at any time, such as when the user withdraws the permission.
    conversation_.listen(
        {session_, sessionInterface, "Closed"}, "()", [this](const auto&) { fail(refusedText); });

    constexpr auto parentWindow = "";
    const BusDictionary options{{"handle_token", busValue(token_)}};
    conversation_.call({
        .method = {desktopPath, locationInterface, "Start"},
        .arguments = busValues(BusPath(session_), parentWindow, options),
        .resultType = "(o)",
        .patience = patience_.answer,
    });
}

void PortalSource::fail(const std::string& reason)
{
    const auto handler = handlers_.onFailure;
    handler(reason);
}

} // namespace gtk
