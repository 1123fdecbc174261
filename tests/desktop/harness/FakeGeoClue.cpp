#include "FakeGeoClue.h"

namespace desktop {

namespace {

constexpr auto managerPath = "/org/freedesktop/GeoClue2/Manager";
constexpr auto clientPath = "/org/freedesktop/GeoClue2/Client/1";
constexpr auto clientInterface = "org.freedesktop.GeoClue2.Client";

constexpr auto managerDescription = R"(<node>
  <interface name="org.freedesktop.GeoClue2.Manager">
    <method name="CreateClient"><arg direction="out" type="o"/></method>
    <method name="DeleteClient"><arg direction="in" type="o"/></method>
  </interface>
</node>)";

constexpr auto clientDescription = R"(<node>
  <interface name="org.freedesktop.GeoClue2.Client">
    <method name="Start"/>
    <signal name="LocationUpdated"><arg type="o"/><arg type="o"/></signal>
    <property name="DesktopId" type="s" access="readwrite"/>
    <property name="RequestedAccuracyLevel" type="u" access="readwrite"/>
  </interface>
</node>)";

constexpr auto locationDescription = R"(<node>
  <interface name="org.freedesktop.GeoClue2.Location">
    <property name="Latitude" type="d" access="read"/>
    <property name="Longitude" type="d" access="read"/>
    <property name="Accuracy" type="d" access="read"/>
    <property name="Description" type="s" access="read"/>
  </interface>
</node>)";

const std::string locationPath = std::string(clientPath) + "/Location/";

} // namespace

FakeGeoClue::FakeGeoClue(Manner manner, std::vector<Place> places)
    : FakeService("DBUS_SYSTEM_BUS_ADDRESS", "org.freedesktop.GeoClue2")
    , manner_(manner)
    , places_(std::move(places))
{
    FakeService::start();
}

void FakeGeoClue::tell(const Place& place)
{
    invoke([this, place] { announce(place); });
}

void FakeGeoClue::registerObjects()
{
    registerObject(managerPath, managerDescription);
    registerObject(clientPath, clientDescription);
}

void FakeGeoClue::handle(const std::string& method, GVariant*, GDBusMethodInvocation* invocation)
{
    note(method);
    if (manner_ == Manner::staysSilent)
        return;
    if (method == "Start")
        return start(invocation);
    g_dbus_method_invocation_return_value(
        invocation, method == "CreateClient" ? g_variant_new("(o)", clientPath) : nullptr);
}

void FakeGeoClue::start(GDBusMethodInvocation* invocation)
{
    switch (manner_) {
    case Manner::denies:
        return g_dbus_method_invocation_return_error_literal(
            invocation, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED, "no");
    case Manner::fails:
        return g_dbus_method_invocation_return_error_literal(
            invocation, G_DBUS_ERROR, G_DBUS_ERROR_FAILED, "broken");
    case Manner::neverDecides:
    case Manner::staysSilent:
        return;
    case Manner::grants:
        g_dbus_method_invocation_return_value(invocation, nullptr);
        for (const auto& place : places_)
            announce(place);
    }
}

GVariant* FakeGeoClue::property(const std::string& path, const std::string& name)
{
    if (!path.starts_with(locationPath))
        return nullptr;
    const auto& place = told_.at(std::stoul(path.substr(locationPath.size())));
    if (name == "Description")
        return g_variant_new_string("fake");
    return g_variant_new_double(name == "Latitude" ? place.latitude
            : name == "Longitude"                  ? place.longitude
                                                   : place.accuracy);
}

void FakeGeoClue::announce(const Place& place)
{
    const auto pathOf = [](std::size_t count) { return locationPath + std::to_string(count - 1); };
    const auto before = told_.empty() ? "/" : pathOf(told_.size());
    told_.push_back(place);
    const auto now = pathOf(told_.size());
    registerObject(now, locationDescription);
    emit(clientPath, clientInterface, "LocationUpdated",
        g_variant_new("(oo)", before.c_str(), now.c_str()));
}

} // namespace desktop
