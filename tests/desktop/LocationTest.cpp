// Where the computer is, from the services of the desktop.

#include "harness/FakeGeoClue.h"
#include "harness/MainLoop.h"
#include "platform/corelocation/CLLocationManagerDelegate.h"
#include "platform/gtk/corelocation/GtkLocationManager.h"
#include "platform/gtk/corelocation/LocationServices.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/gtk/foundation/GtkUserDefaults.h"

#include <algorithm>
#include <cmath>
#include <giomm/init.h>
#include <gtest/gtest.h>

namespace desktop {

namespace {

using gtk::LocationServices;
using platform::CLAuthorizationStatus;
using platform::CLLocation;
using Manner = FakeGeoClue::Manner;
using Places = std::vector<FakeGeoClue::Place>;

constexpr auto noService = "This computer has no location service.";
constexpr auto noAnswer = "The location service does not answer.";

// Notes what a manager tells.
struct Listener final : platform::CLLocationManagerDelegate {
    void locationManagerDidChangeAuthorization(platform::CLLocationManager& manager) override
    {
        statuses.push_back(manager.authorizationStatus());
    }
    void locationManagerDidUpdateLocations(
        platform::CLLocationManager&, const std::vector<CLLocation>& delivered) override
    {
        ++answers;
        locations = delivered;
    }
    void locationManagerDidFailWithError(
        platform::CLLocationManager&, const platform::NSError& error) override
    {
        ++answers;
        failure = error.localizedDescription;
    }

    std::vector<CLAuthorizationStatus> statuses;
    std::vector<CLLocation> locations;
    std::string failure;
    int answers = 0;
};

std::vector<double> latitudes(const std::vector<CLLocation>& locations)
{
    std::vector<double> result;
    for (const auto& location : locations)
        result.push_back(location.coordinate.latitude);
    return result;
}

// The portal that tells sandboxed programs where they are, on the private session bus.
class FakeLocationPortal {
public:
    // Where the user allows it, it tells one place: 12.5 north, 3.25 west, to 20 metres.
    explicit FakeLocationPortal(bool isAllowed)
        : isAllowed_(isAllowed)
        , service(G_BUS_TYPE_SESSION, "org.freedesktop.portal.Desktop",
              {
                  {"CreateSession", FakeService::answering("(objectpath '/session',)")},
                  {"Start", [this](const auto& call) { start(call); }},
                  {"Close", FakeService::answering()},
              })
    {
    }

private:
    void start(const FakeService::Call& call)
    {
        // The request belongs where its sender and the options of the call say.
        g_autoptr(GVariant) options = g_variant_get_child_value(call.arguments.get(), 2);
        const char* token = "";
        g_variant_lookup(options, "handle_token", "&s", &token);
        auto sender = call.sender.substr(1);
        std::ranges::replace(sender, '.', '_');
        const auto request = std::string(desktopPath) + "/request/" + sender + "/" + token;

        call.answer(g_variant_new("(o)", request.c_str()));
        service.emit(request, "org.freedesktop.portal.Request", "Response",
            g_variant_new_parsed("(%u, @a{sv} {})", isAllowed_ ? 0u : 1u));
        // Also tells the place of a session that is not the caller's, and of callers it has
        // refused.
        tellPlace("/some/other/session");
        if (isAllowed_)
            tellPlace("/session");
    }

    void tellPlace(const char* session)
    {
        service.emit(desktopPath, "org.freedesktop.portal.Location", "LocationUpdated",
            g_variant_new_parsed(
                "(%o, {'Latitude': <12.5>, 'Longitude': <-3.25>, 'Accuracy': <20.0>})", session));
    }

    static constexpr auto desktopPath = "/org/freedesktop/portal/desktop";
    const bool isAllowed_;

public:
    FakeService service; // last, as its methods use the others
};

} // namespace

class LocationTest : public testing::Test {
protected:
    // A computer with patience for a test, and a user who is asked `questions` times.
    LocationTest()
    {
        Gio::init();
        settings.removeObject(
            gtk::GtkLocationManager::permissionKey); // of an earlier test in this home
        options.patience.answer = 0.3;
        options.patience.consent = 0.6;
        options.patience.firstLocation = 0.3;
        options.patience.betterLocation = 0.3;
    }

    std::unique_ptr<LocationServices> makeServices()
    {
        return std::make_unique<LocationServices>(options, queue, settings, [this](auto answer) {
            ++questions;
            this->answer = answer;
        });
    }

    // Asks for the location once and waits for the end of it.
    Listener request(platform::CLLocationManager& manager)
    {
        Listener listener;
        manager.setDelegate(&listener);
        manager.requestLocation();
        EXPECT_EQ(listener.answers, 0) << "answered at once";
        EXPECT_TRUE(until([&] { return listener.answers > 0; }));
        manager.setDelegate(nullptr);
        return listener;
    }

    gtk::GtkDispatchQueue queue;
    const std::filesystem::path file =
        std::filesystem::path(std::getenv("HOME")) / "permissions.json";
    gtk::GtkUserDefaults settings{file, queue, [](const auto& line) { ADD_FAILURE() << line; }};
    LocationServices::Options options{.identifier = "example.velmaro.Online", .isSandboxed = false};
    int questions = 0;
    std::function<void(bool)> answer;
};

TEST_F(LocationTest, aRequestEndsWhateverGeoClueDoes)
{
    struct Case {
        Manner manner;
        Places places;
        std::vector<double> latitudes;
        std::string failure;
    };
    const double nowhere = std::nan("");
    const Case cases[] = {
        {Manner::grants, {{1, 10, 5000}, {2, 20, 900}, {3, -30, 60}}, {1, 2, 3}, ""},
        {Manner::grants, {{1, 10, 60}, {2, 20, 50}}, {1}, ""}, // the first is exact enough
        {Manner::grants, {{1, 10, 900}, {2, 20, 5000}, {3, 30, 0}}, {1}, ""}, // no better one
        {Manner::grants, {{nowhere, 10, 60}, {91, 10, 60}, {1, 181, 60}, {4, 180, 60}}, {4}, ""},
        {Manner::denies, {}, {}, gtk::LocationSource::refusedText},
        {Manner::staysSilent, {}, {}, noAnswer},
        {Manner::neverDecides, {}, {}, gtk::LocationSource::notFoundText},
    };
    settings.setBoolean(gtk::GtkLocationManager::permissionKey, true);
    const auto services = makeServices();
    const auto manager = services->makeManager();
    EXPECT_EQ(request(*manager).failure, noService);
    for (const auto& expected : cases) {
        SCOPED_TRACE(&expected - cases);
        FakeGeoClue geoClue(expected.manner, expected.places);
        const auto heard = request(*manager);
        EXPECT_EQ(latitudes(heard.locations), expected.latitudes);
        EXPECT_EQ(heard.failure, expected.failure);
        if (expected.manner == Manner::grants) {
            EXPECT_TRUE(geoClue.service().isCalled("'DesktopId', <'example.velmaro.Online'>"));
            EXPECT_TRUE(geoClue.service().isCalled("'RequestedAccuracyLevel', <uint32 6>"));
        }
        // The desktop must not go on showing that the location is in use.
        if (expected.manner != Manner::staysSilent) {
            EXPECT_TRUE(geoClue.service().isCalled("DeleteClient"));
        }
    }
}

TEST_F(LocationTest, droppingTheManagerEndsTheRequest)
{
    FakeGeoClue geoClue(Manner::neverDecides);
    settings.setBoolean(gtk::GtkLocationManager::permissionKey, true);
    const auto services = makeServices();
    auto manager = services->makeManager();
    manager->requestLocation();
    const auto isStarted = [](const auto& call) { return call.text().ends_with("Start()"); };
    ASSERT_TRUE(until([&] { return std::ranges::any_of(geoClue.service().calls(), isStarted); }));
    manager.reset();
    EXPECT_TRUE(geoClue.service().isCalled("DeleteClient"));
}

TEST_F(LocationTest, theUserIsAskedOnceAndTheAnswerKept)
{
    FakeGeoClue geoClue(Manner::grants);
    for (const bool isAllowed : {true, false}) {
        const auto expected =
            isAllowed ? CLAuthorizationStatus::authorizedAlways : CLAuthorizationStatus::denied;
        settings.removeObject(gtk::GtkLocationManager::permissionKey);
        questions = 0;
        {
            const auto services = makeServices();
            const auto manager = services->makeManager();
            Listener listener;
            manager->setDelegate(&listener);
            EXPECT_EQ(manager->authorizationStatus(), CLAuthorizationStatus::notDetermined);
            manager->requestWhenInUseAuthorization();
            manager->requestWhenInUseAuthorization();
            ASSERT_TRUE(until([&] { return questions > 0; }));
            answer(isAllowed);
            EXPECT_EQ(listener.statuses, std::vector{expected});
        }
        const auto services = makeServices();
        const auto manager = services->makeManager();
        manager->requestWhenInUseAuthorization();
        runWaitingEvents();
        EXPECT_EQ(manager->authorizationStatus(), expected);
        EXPECT_EQ(questions, 1);
        if (!isAllowed) {
            EXPECT_EQ(request(*manager).failure, gtk::LocationSource::refusedText);
            EXPECT_TRUE(geoClue.service().calls().empty());
        }
    }
}

TEST_F(LocationTest, insideASandboxThePortalDecides)
{
    options.isSandboxed = true;
    const auto services = makeServices();
    const auto manager = services->makeManager();
    EXPECT_EQ(request(*manager).failure, noService);
    for (const bool isAllowed : {true, false}) {
        FakeLocationPortal portal(isAllowed);
        EXPECT_EQ(manager->authorizationStatus(), CLAuthorizationStatus::authorizedAlways);
        const auto heard = request(*manager);
        EXPECT_EQ(latitudes(heard.locations), std::vector<double>(isAllowed, 12.5));
        EXPECT_EQ(heard.failure, isAllowed ? "" : gtk::LocationSource::refusedText);
        EXPECT_TRUE(portal.service.isCalled("'accuracy': <uint32 4>"));
        EXPECT_TRUE(portal.service.isCalled("Close()"));
    }
    EXPECT_EQ(questions, 0);
}

} // namespace desktop
