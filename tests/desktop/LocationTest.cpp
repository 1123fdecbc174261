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
    enum class Manner {
        grants, // and tells one place: 12.5 north, 3.25 west, to 20 metres
        refuses, // the user says no
        endsTheSession, // after it has granted one
        neverDecides,
    };

    explicit FakeLocationPortal(Manner manner)
        : manner_(manner)
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
        if (manner_ == Manner::neverDecides)
            return;
        service.emit(request, "org.freedesktop.portal.Request", "Response",
            g_variant_new_parsed("(%u, @a{sv} {})", manner_ == Manner::refuses ? 1u : 0u));
        if (manner_ == Manner::endsTheSession)
            service.emit("/session", "org.freedesktop.portal.Session", "Closed", nullptr);
        // Also tells the place of a session that is not the caller's, and of callers it has
        // refused.
        tellPlace("/some/other/session");
        if (manner_ == Manner::grants)
            tellPlace("/session");
    }

    void tellPlace(const char* session)
    {
        service.emit(desktopPath, "org.freedesktop.portal.Location", "LocationUpdated",
            g_variant_new_parsed(
                "(%o, {'Latitude': <12.5>, 'Longitude': <-3.25>, 'Accuracy': <20.0>})", session));
    }

    static constexpr auto desktopPath = "/org/freedesktop/portal/desktop";
    const Manner manner_;

public:
    FakeService service; // last, as its methods use the others
};

} // namespace

// All that a service was asked for, in order.
std::string calls(const FakeGeoClue& geoClue)
{
    std::string text;
    for (const auto& call : geoClue.service().calls())
        text += call.text() + "\n";
    return text;
}

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

    void allow() { settings.setBoolean(gtk::GtkLocationManager::permissionKey, true); }

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
        {Manner::grants, {{1, 10, 100}}, {1}, ""},
        {Manner::grants, {{1, 10, 5000}, {2, 20, 900}, {3, -30, 60}}, {1, 2, 3}, ""},
        {Manner::grants, {{1, 10, 60}, {2, 20, 50}}, {1}, ""}, // the first is exact enough
        {Manner::grants, {{1, 10, 5000}}, {1}, ""}, // no better one comes
        {Manner::grants, {{1, 10, 900}, {2, 20, 5000}, {3, 30, 0}}, {1}, ""}, // nor here
        {Manner::grants, {{1, 10, 0}, {2, 20, 5000}}, {1, 2}, ""}, // accuracy not known
        {Manner::grants, {{nowhere, 10, 60}, {91, 10, 60}, {1, 181, 60}, {4, 180, 60}}, {4}, ""},
        {Manner::grants, {}, {}, gtk::LocationSource::notFoundText},
        {Manner::denies, {}, {}, gtk::LocationSource::refusedText},
        {Manner::fails, {}, {}, gtk::LocationSource::notFoundText},
        {Manner::staysSilent, {}, {}, noAnswer},
        {Manner::neverDecides, {}, {}, gtk::LocationSource::notFoundText},
    };
    allow();
    const auto services = makeServices();
    const auto manager = services->makeManager();
    EXPECT_EQ(request(*manager).failure, noService);
    for (const auto& expected : cases) {
        SCOPED_TRACE(&expected - cases);
        FakeGeoClue geoClue(expected.manner, expected.places);
        const auto heard = request(*manager);
        EXPECT_EQ(latitudes(heard.locations), expected.latitudes);
        EXPECT_EQ(heard.failure, expected.failure);
        // The desktop must not go on showing that the location is in use.
        if (expected.manner != Manner::staysSilent) {
            EXPECT_TRUE(geoClue.service().isCalled("DeleteClient"));
        }
    }
}

TEST_F(LocationTest, geoClueLearnsWhoAsksAndHowExactly)
{
    struct Case {
        double metres;
        std::string level;
    };
    allow();
    const auto services = makeServices();
    const auto manager = services->makeManager();
    for (const auto& [metres, level] : std::initializer_list<Case>{
             {10, "8"}, {platform::kCLLocationAccuracyHundredMeters, "6"}, {3000, "5"}}) {
        FakeGeoClue geoClue(Manner::grants, {{1, 10, 5}});
        manager->setDesiredAccuracy(metres);
        request(*manager);
        const auto heard = calls(geoClue);
        EXPECT_NE(heard.find("'DesktopId', <'example.velmaro.Online'>"), std::string::npos);
        EXPECT_LT(heard.find("'RequestedAccuracyLevel', <uint32 " + level), heard.find("Start()"));
    }
}

TEST_F(LocationTest, droppingTheManagerEndsTheRequest)
{
    FakeGeoClue geoClue(Manner::neverDecides);
    allow();
    const auto services = makeServices();
    auto manager = services->makeManager();
    Listener listener;
    manager->setDelegate(&listener);
    manager->requestLocation();
    ASSERT_TRUE(until([&] { return calls(geoClue).find("Start()") != std::string::npos; }));
    manager->requestLocation(); // joins the first
    EXPECT_TRUE(until([&] { return listener.answers == 1; }));
    EXPECT_EQ(calls(geoClue).find("CreateClient"), calls(geoClue).rfind("CreateClient"));

    manager->requestLocation();
    const auto isAnotherStarted = [&] {
        return calls(geoClue).find("Start()") != calls(geoClue).rfind("Start()");
    };
    ASSERT_TRUE(until(isAnotherStarted));
    manager.reset();
    EXPECT_TRUE(geoClue.service().isCalled("DeleteClient", 2));
    EXPECT_EQ(listener.answers, 1);
}

TEST_F(LocationTest, theUserIsAskedOnceAndTheAnswerKept)
{
    for (const bool isAllowed : {true, false}) {
        const auto expected =
            isAllowed ? CLAuthorizationStatus::authorizedAlways : CLAuthorizationStatus::denied;
        settings.removeObject(gtk::GtkLocationManager::permissionKey);
        questions = 0;
        {
            const auto services = makeServices();
            const auto first = services->makeManager(), second = services->makeManager();
            Listener firstListener, secondListener;
            first->setDelegate(&firstListener);
            second->setDelegate(&secondListener);
            EXPECT_EQ(first->authorizationStatus(), CLAuthorizationStatus::notDetermined);

            first->requestWhenInUseAuthorization();
            second->requestWhenInUseAuthorization();
            EXPECT_EQ(questions, 0) << "asked inside the call";
            ASSERT_TRUE(until([&] { return questions > 0; }));
            EXPECT_TRUE(firstListener.statuses.empty());

            answer(isAllowed);
            answer(!isAllowed); // too late
            EXPECT_EQ(firstListener.statuses, std::vector{expected});
            EXPECT_EQ(secondListener.statuses, std::vector{expected});
            first->requestWhenInUseAuthorization();
        }
        settings.flush();
        const auto services = makeServices();
        const auto manager = services->makeManager();
        manager->requestWhenInUseAuthorization();
        runWaitingEvents();
        EXPECT_EQ(manager->authorizationStatus(), expected);
        EXPECT_EQ(questions, 1);
        gtk::GtkUserDefaults onDisk(file, queue, [](const auto& line) { ADD_FAILURE() << line; });
        EXPECT_TRUE(onDisk.contains(gtk::GtkLocationManager::permissionKey));
        EXPECT_EQ(onDisk.boolean(gtk::GtkLocationManager::permissionKey), isAllowed);
    }
}

TEST_F(LocationTest, geoClueIsNotAskedWithoutPermission)
{
    FakeGeoClue geoClue(Manner::grants, {{1, 10, 50}});
    settings.setBoolean(gtk::GtkLocationManager::permissionKey, false);
    const auto services = makeServices();
    EXPECT_EQ(request(*services->makeManager()).failure, gtk::LocationSource::refusedText);
    EXPECT_EQ(calls(geoClue), "");
}

TEST_F(LocationTest, insideASandboxThePortalDecides)
{
    using PortalManner = FakeLocationPortal::Manner;
    struct Case {
        PortalManner manner;
        std::vector<double> latitudes;
        std::string failure;
    };
    const Case cases[] = {
        {PortalManner::grants, {12.5}, ""},
        {PortalManner::refuses, {}, gtk::LocationSource::refusedText},
        {PortalManner::endsTheSession, {}, gtk::LocationSource::refusedText},
        {PortalManner::neverDecides, {}, gtk::LocationSource::notFoundText},
    };
    options.isSandboxed = true;
    const auto services = makeServices();
    const auto manager = services->makeManager();
    EXPECT_EQ(request(*manager).failure, noService);
    for (const auto& expected : cases) {
        SCOPED_TRACE(&expected - cases);
        FakeLocationPortal portal(expected.manner);
        EXPECT_EQ(manager->authorizationStatus(), CLAuthorizationStatus::authorizedAlways);
        const auto heard = request(*manager);
        EXPECT_EQ(latitudes(heard.locations), expected.latitudes);
        EXPECT_EQ(heard.failure, expected.failure);
        EXPECT_TRUE(portal.service.isCalled("'accuracy': <uint32 4>"));
        EXPECT_TRUE(portal.service.isCalled("Close()"));
    }
    EXPECT_EQ(questions, 0);
}

} // namespace desktop
