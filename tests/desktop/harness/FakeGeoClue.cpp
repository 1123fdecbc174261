#include "FakeGeoClue.h"

namespace desktop {

namespace {

constexpr auto clientPath = "/org/freedesktop/GeoClue2/Client/1";
const std::string locationPath = std::string(clientPath) + "/Location/"; // and a place's number

} // namespace

FakeGeoClue::FakeGeoClue(Manner manner, std::vector<Place> places)
    : manner_(manner)
    , places_(std::move(places))
    , service_(G_BUS_TYPE_SYSTEM, "org.freedesktop.GeoClue2",
          {
              {"CreateClient",
                  [this](const auto& call) {
                      if (manner_ != Manner::staysSilent)
                          call.answer(g_variant_new("(o)", clientPath));
                  }},
              {"Set", FakeService::answering()},
              {"Start", [this](const auto& call) { start(call); }},
              {"DeleteClient", FakeService::answering()},
              {"GetAll",
                  [this](const auto& call) {
                      const auto& place =
                          places_.at(std::stoul(call.path.substr(locationPath.size())));
                      call.answer(g_variant_new_parsed(
                          "({'Latitude': <%d>, 'Longitude': <%d>, 'Accuracy': <%d>},)",
                          place.latitude, place.longitude, place.accuracy));
                  }},
          })
{
}

void FakeGeoClue::start(const FakeService::Call& call)
{
    if (manner_ == Manner::denies)
        return call.refuse("org.freedesktop.DBus.Error.AccessDenied", "no");
    if (manner_ == Manner::neverDecides)
        return;
    call.answer();
    for (std::size_t place = 0; place < places_.size(); ++place) {
        service_.emit(clientPath, "org.freedesktop.GeoClue2.Client", "LocationUpdated",
            g_variant_new("(oo)", "/", (locationPath + std::to_string(place)).c_str()));
    }
}

} // namespace desktop
