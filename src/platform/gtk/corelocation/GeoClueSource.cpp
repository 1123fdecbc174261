#include "platform/gtk/corelocation/GeoClueSource.h"

#include <cstdint>
#include <iterator>

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

} // namespace

GeoClueSource::GeoClueSource(std::string identifier, const LocationTimeouts& patience)
    : identifier_(std::move(identifier))
    , patience_(patience)
    , conversation_(Gio::DBus::BusType::SYSTEM, serviceName, [this](const auto& error) {
        const auto handler = handlers_.onFailure;
        handler(failureText(error));
    })
{
}

GeoClueSource::~GeoClueSource()
{
    // Otherwise the desktop would go on showing that the location is in use.
    if (!client_.empty()) {
        conversation_.tell(
            {managerPath, managerInterface, "DeleteClient"}, busValues(BusPath(client_)));
    }
}

void GeoClueSource::start(double accuracy, Handlers handlers)
{
    accuracy_ = accuracy;
    handlers_ = std::move(handlers);
    conversation_.call(
        {
            .method = {managerPath, managerInterface, "CreateClient"},
            .resultType = "(o)",
            .patience = patience_.answer,
        },
        [this](const auto& results) {
            client_ = child<BusPath>(results, 0);
            configure();
        });
}

void GeoClueSource::configure()
{
    setClientProperty("DesktopId", busValue(identifier_), [this] {
        setClientProperty("RequestedAccuracyLevel", busValue(accuracyLevel(accuracy_)),
            [this] { startClient(); });
    });
}

void GeoClueSource::setClientProperty(
    const char* name, const Glib::VariantBase& value, std::function<void()> then)
{
    conversation_.call(
        {
            .method = {client_, propertiesInterface, "Set"},
            .arguments = busValues(clientInterface, name, value),
            .patience = patience_.answer,
        },
        [then = std::move(then)](const auto&) { then(); });
}

void GeoClueSource::startClient()
{
    // Locations may come before the answer to "Start".
    conversation_.listen({client_, clientInterface, "LocationUpdated"}, "(oo)",
        [this](const auto& values) { readLocation(child<BusPath>(values, 1)); });
    conversation_.call(
        {.method = {client_, clientInterface, "Start"}, .patience = patience_.consent},
        [this](const auto&) {
            const auto handler = handlers_.onStarted;
            handler();
        });
}

void GeoClueSource::readLocation(const std::string& path)
{
    conversation_.call(
        {
            .method = {path, propertiesInterface, "GetAll"},
            .arguments = busValues(locationInterface),
            .resultType = "(a{sv})",
            .patience = patience_.answer,
        },
        [this](const auto& results) {
            const auto found = location(child<BusDictionary>(results, 0));
            if (!found)
                return;
            const auto handler = handlers_.onLocation;
            handler(*found);
        });
}

} // namespace gtk
