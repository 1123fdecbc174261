#include "platform/gtk/corelocation/PortalSource.h"

#include "platform/foundation/UUID.h"
#include "platform/gtk/corelocation/ServiceLocation.h"

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

using Options = std::map<Glib::ustring, Glib::VariantBase>;

std::string freshToken()
{
    std::string token = "velmaro";
    token += platform::UUID().string();
    std::erase(token, '-');
    return token;
}

// Where the portal will put a request of `sender`, known before it is made so that no answer is
// missed.
std::string requestPath(const std::string& sender, const std::string& token)
{
    auto name = sender.substr(1); // without the colon
    std::ranges::replace(name, '.', '_');
    return std::string(desktopPath) + "/request/" + name + "/" + token;
}

template <class T> T child(const BusConversation::Arguments& values, unsigned index)
{
    Glib::Variant<T> value;
    values.get_child(value, index);
    return value.get();
}

} // namespace

PortalSource::PortalSource(const LocationTimeouts& patience)
    : patience_(patience)
    , token_(freshToken())
    , conversation_(
          serviceName, [this](const auto& error) { fail(ServiceLocation::failureText(error)); })
{
}

PortalSource::~PortalSource()
{
    if (!session_.empty())
        conversation_.tell({session_, sessionInterface, "Close"}, {});
}

void PortalSource::start(double accuracy, Handlers handlers)
{
    accuracy_ = accuracy;
    handlers_ = std::move(handlers);
    conversation_.open(Gio::DBus::BusType::SESSION, [this] { createSession(); });
}

void PortalSource::createSession()
{
    const Options options = {
        {"session_handle_token", Glib::Variant<Glib::ustring>::create(token_)},
        {"accuracy",
            Glib::Variant<guint32>::create(accuracy_ >= streetAccuracy ? streetLevel : exactLevel)},
    };
    const auto arguments =
        Glib::VariantContainerBase::create_tuple(Glib::Variant<Options>::create(options));
    conversation_.call({desktopPath, locationInterface, "CreateSession"}, arguments, "(o)",
        patience_.answer, [this](const auto& results) {
            session_ = BusConversation::pathIn(results, 0);
            startSession();
        });
}

void PortalSource::startSession()
{
    conversation_.listen({desktopPath, locationInterface, "LocationUpdated"}, "(oa{sv})",
        [this](const auto& values) {
            if (BusConversation::pathIn(values, 0) != session_)
                return;
            const auto location =
                ServiceLocation::location(child<ServiceLocation::Properties>(values, 1));
            if (!location)
                return;
            const auto handler = handlers_.onLocation;
            handler(*location);
        });
    conversation_.listen(
        {requestPath(conversation_.ownName(), token_), requestInterface, "Response"}, "(ua{sv})",
        [this](const auto& values) {
            const auto answer = child<guint32>(values, 0);
            if (answer != granted) {
                return fail(answer == refusedByUser ? ServiceLocation::refusedText
                                                    : ServiceLocation::notFoundText);
            }
            const auto handler = handlers_.onStarted;
            handler();
        });
    // The portal may end a session at any time, such as when the user withdraws the permission.
    conversation_.listen({session_, sessionInterface, "Closed"}, "()",
        [this](const auto&) { fail(ServiceLocation::refusedText); });

    const Options options = {{"handle_token", Glib::Variant<Glib::ustring>::create(token_)}};
    const auto arguments = Glib::VariantContainerBase::create_tuple({
        Glib::Variant<Glib::DBusObjectPathString>::create(session_),
        Glib::Variant<Glib::ustring>::create(""), // no parent window
        Glib::Variant<Options>::create(options),
    });
    conversation_.call({desktopPath, locationInterface, "Start"}, arguments, "(o)",
        patience_.answer, [](const auto&) {});
}

void PortalSource::fail(const std::string& reason)
{
    const auto handler = handlers_.onFailure;
    handler(reason);
}

} // namespace gtk
