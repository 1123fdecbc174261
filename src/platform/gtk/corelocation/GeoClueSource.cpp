#include "platform/gtk/corelocation/GeoClueSource.h"

#include "platform/gtk/corelocation/ServiceLocation.h"

#include <cstdint>
#include <tuple>

namespace gtk {

namespace {

constexpr auto serviceName = "org.freedesktop.GeoClue2";
constexpr auto managerPath = "/org/freedesktop/GeoClue2/Manager";
constexpr auto managerInterface = "org.freedesktop.GeoClue2.Manager";
constexpr auto clientInterface = "org.freedesktop.GeoClue2.Client";
constexpr auto locationInterface = "org.freedesktop.GeoClue2.Location";
constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties";

struct AccuracyLevel {
    double metres; // the least that the level is for
    std::uint32_t level;
};

// From coarse to fine, as GeoClue numbers them.
constexpr AccuracyLevel accuracyLevels[] = {
    {10'000, 4}, // city
    {1'000, 5}, // neighbourhood
    {100, 6}, // street
    {0, 8}, // exact
};

std::uint32_t accuracyLevel(double metres)
{
    for (const auto& [least, level] : accuracyLevels) {
        if (metres >= least)
            return level;
    }
    return accuracyLevels[std::size(accuracyLevels) - 1].level;
}

BusConversation::Arguments pathArgument(const std::string& path)
{
    return Glib::VariantContainerBase::create_tuple(
        Glib::Variant<Glib::DBusObjectPathString>::create(path));
}

} // namespace

GeoClueSource::GeoClueSource(std::string identifier, const LocationTimeouts& patience)
    : identifier_(std::move(identifier))
    , patience_(patience)
    , conversation_(serviceName, [this](const auto& error) {
        const auto handler = handlers_.onFailure;
        handler(ServiceLocation::failureText(error));
    })
{
}

GeoClueSource::~GeoClueSource()
{
    // Otherwise the desktop would go on showing that the location is in use.
    if (!client_.empty())
        conversation_.tell({managerPath, managerInterface, "DeleteClient"}, pathArgument(client_));
}

void GeoClueSource::start(double accuracy, Handlers handlers)
{
    accuracy_ = accuracy;
    handlers_ = std::move(handlers);
    conversation_.open(Gio::DBus::BusType::SYSTEM, [this] { requestClient(); });
}

void GeoClueSource::requestClient()
{
    conversation_.call({managerPath, managerInterface, "CreateClient"}, {}, "(o)", patience_.answer,
        [this](const auto& results) {
            client_ = BusConversation::pathIn(results, 0);
            configure();
        });
}

void GeoClueSource::configure()
{
    const auto identifier = Glib::Variant<Glib::ustring>::create(identifier_);
    const auto level = Glib::Variant<guint32>::create(accuracyLevel(accuracy_));
    setClientProperty("DesktopId", identifier, [this, level] {
        setClientProperty("RequestedAccuracyLevel", level, [this] { startClient(); });
    });
}

void GeoClueSource::startClient()
{
    // Locations may come before the answer to "Start".
    conversation_.listen({client_, clientInterface, "LocationUpdated"}, "(oo)",
        [this](const auto& values) { readLocation(BusConversation::pathIn(values, 1)); });
    conversation_.call(
        {client_, clientInterface, "Start"}, {}, "()", patience_.consent, [this](const auto&) {
            const auto handler = handlers_.onStarted;
            handler();
        });
}

void GeoClueSource::readLocation(const std::string& path)
{
    const auto argument = Glib::VariantContainerBase::create_tuple(
        Glib::Variant<Glib::ustring>::create(locationInterface));
    conversation_.call({path, propertiesInterface, "GetAll"}, argument, "(a{sv})", patience_.answer,
        [this](const auto& results) {
            Glib::Variant<ServiceLocation::Properties> properties;
            results.get_child(properties, 0);
            const auto location = ServiceLocation::location(properties.get());
            if (!location)
                return;
            const auto handler = handlers_.onLocation;
            handler(*location);
        });
}

void GeoClueSource::setClientProperty(
    const char* name, const Glib::VariantBase& value, std::function<void()> then)
{
    const auto arguments = Glib::VariantContainerBase::create_tuple({
        Glib::Variant<Glib::ustring>::create(clientInterface),
        Glib::Variant<Glib::ustring>::create(name),
        Glib::Variant<Glib::VariantBase>::create(value),
    });
    conversation_.call({client_, propertiesInterface, "Set"}, arguments, "()", patience_.answer,
        [then = std::move(then)](const auto&) { then(); });
}

} // namespace gtk
