// Places for a typed text, from a geocoding service.

#include "harness/DemoServiceProcess.h"
#include "harness/FakeGeocoder.h"
#include "harness/MainLoop.h"
#include "platform/foundation/URL.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/gtk/mapkit/GeocodedPlace.h"
#include "platform/gtk/mapkit/GtkLocalSearch.h"
#include "platform/gtk/mapkit/GtkLocalSearchCompleter.h"
#include "platform/mapkit/MKLocalSearchCompleterDelegate.h"

#include <giomm/init.h>
#include <gtest/gtest.h>

namespace desktop {

namespace {

using gtk::GeocodedPlace;
using Texts = std::vector<std::string>;

constexpr double pause = 0.05; // seconds

// Notes what a completer tells: the titles of the results, or that it has failed.
struct Listener final : platform::MKLocalSearchCompleterDelegate {
    void completerDidUpdateResults(platform::MKLocalSearchCompleter& completer) override
    {
        std::string titles;
        for (const auto& result : completer.results())
            titles += result->title + ";";
        told.push_back(titles);
    }
    void completerDidFailWithError(
        platform::MKLocalSearchCompleter& completer, const platform::NSError& error) override
    {
        EXPECT_TRUE(completer.results().empty());
        EXPECT_NE(error.localizedDescription, "");
        told.push_back("failure");
    }

    Texts told;
};

std::string answerWith(const std::string& properties)
{
    return R"({"features":[{"geometry":{"coordinates":[2,1]},"properties":)" + properties + "}]}";
}

std::string answerNaming(const std::string& name)
{
    return answerWith(R"({"name":")" + name + R"(","osm_key":"amenity"})");
}

} // namespace

TEST(GeocodedPlace, putsWhatTheServiceKnowsIntoWords)
{
    struct Case {
        std::string properties, title, subtitle;
        bool isAddress = false;
    };
    const Case cases[] = {
        {R"({"name":"Cafe","osm_key":"amenity","housenumber":"1","street":"Main St",)"
         R"("city":"Ellery","state":"East","country":"Islands","countrycode":"US"})",
            "Cafe", "1 Main St, Ellery, East, Islands"},
        {R"({"name":"Caf\u00e9","street":"Hauptstra\u00dfe","housenumber":"3b","city":"Berlin",)"
         R"("state":"Berlin","country":"Deutschland","countrycode":"DE"})",
            "Caf\u00e9", "Hauptstra\u00dfe 3b, Berlin, Deutschland"},
        {R"({"osm_key":"place","housenumber":"7","street":"Quay","city":"Ellery"})", "Quay 7",
            "Ellery", true},
        {R"({"osm_key":"highway","name":"Quay","country":"Islands"})", "Quay", "Islands", true},
        {R"({"name":"Berlin","osm_key":"place","state":"Berlin"})", "Berlin", "", true},
        {R"({"city":"Ellery","country":"Islands"})", "Ellery, Islands", "Ellery, Islands"},
        {R"({"name":"two\nlines\u0000\t'\\\"","city":5,"street":null})", "two lines  '\\\"", ""},
    };
    for (const auto& expected : cases) {
        const auto places = GeocodedPlace::fromAnswer(answerWith(expected.properties));
        ASSERT_TRUE(places && places->size() == 1) << expected.properties;
        EXPECT_EQ(places->front().title, expected.title);
        EXPECT_EQ(places->front().subtitle, expected.subtitle);
        EXPECT_EQ(places->front().isAddress, expected.isAddress);
        EXPECT_EQ(places->front().coordinate.latitude, 1);
        EXPECT_EQ(places->front().coordinate.longitude, 2);
    }
}

TEST(GeocodedPlace, isNotReadFromAnythingElse)
{
    for (const std::string answer : {"", "null", "[]", "{}", "{\"features\":{}}", "<html>",
             "{\"features\":[", "{\"features\":[]}}", "\xff\xfe"}) {
        EXPECT_FALSE(GeocodedPlace::fromAnswer(answer)) << answer;
    }
    EXPECT_TRUE(GeocodedPlace::fromAnswer(R"({"features":[]})"));
}

class GeocodingTest : public testing::Test {
protected:
    GeocodingTest() { Gio::init(); }

    static std::unique_ptr<gtk::GtkLocalSearchCompleter> makeCompleter(
        const std::string& address, gtk::GtkURLCache& cache)
    {
        return std::make_unique<gtk::GtkLocalSearchCompleter>(
            std::make_shared<gtk::GeocodingService>(
                gtk::GeocodingService::Options{.address = address, .secondsToWait = 1}, cache),
            pause);
    }

    void waitForNews(std::size_t count = 1)
    {
        EXPECT_TRUE(until([&] { return listener.told.size() >= count; }));
    }

    FakeGeocoder geocoder;
    const std::filesystem::path folder = std::filesystem::path(std::getenv("HOME")) / "responses";
    gtk::GtkURLCache cache{folder};
    std::unique_ptr<gtk::GtkLocalSearchCompleter> completer =
        makeCompleter(geocoder.address(), cache);
    Listener listener;

    void SetUp() override { completer->setDelegate(&listener); }
};

TEST_F(GeocodingTest, asksOnceWhenTheTypingPauses)
{
    for (const auto* text : {"c", "ca", "caf", "caf\u00e9 & bar?#/%+"}) {
        completer->setQueryFragment(text);
        EXPECT_TRUE(listener.told.empty()) << "told inside the call";
    }
    geocoder.answer(answerNaming("Cafe"));
    waitForNews();
    EXPECT_EQ(geocoder.questions(), Texts{"caf\u00e9 & bar?#/%+"});
    EXPECT_EQ(geocoder.limits(), Texts{"10"});
    EXPECT_EQ(listener.told, Texts{"Cafe;"});
}

TEST_F(GeocodingTest, aBlankTextHasNoSuggestionsAndNeedsNoNetwork)
{
    geocoder.answer(answerNaming("Cafe"));
    completer->setQueryFragment("cafe");
    waitForNews();
    for (const auto* blank : {"", " ", " \t\u00a0"}) {
        completer->setQueryFragment(blank);
        EXPECT_EQ(completer->queryFragment(), blank);
        const auto count = listener.told.size() + 1;
        waitForNews(count);
        EXPECT_EQ(listener.told.back(), "");
    }
    EXPECT_EQ(geocoder.questions().size(), 1u);
}

TEST_F(GeocodingTest, aLateAnswerToAnEarlierTextIsDropped)
{
    geocoder.hold();
    completer->setQueryFragment("first");
    ASSERT_TRUE(until([&] { return geocoder.questions().size() == 1; }));
    completer->setQueryFragment("second");
    ASSERT_TRUE(until([&] { return geocoder.questions().size() == 2; }));
    geocoder.answerHeld(1, answerNaming("Second"));
    geocoder.answerHeld(0, answerNaming("First"));
    waitForNews();
    completer->setQueryFragment("third");
    ASSERT_TRUE(until([&] { return geocoder.questions().size() == 3; }));
    geocoder.answerHeld(2, answerNaming("Third"));
    waitForNews(2);
    EXPECT_EQ(listener.told, (Texts{"Second;", "Third;"}));

    completer->setQueryFragment("fourth");
    ASSERT_TRUE(until([&] { return geocoder.questions().size() == 4; }));
    completer.reset();
    geocoder.answerHeld(3, answerNaming("Fourth"));
    runWaitingEvents();
    EXPECT_EQ(listener.told.size(), 2u);
}

TEST_F(GeocodingTest, everyFailureIsToldAndEmptiesTheResults)
{
    struct Case {
        const char* name;
        std::function<void(FakeGeocoder&)> prepare;
    };
    const Case cases[] = {
        {"error page", [](auto& it) { it.answer("<html>", 503); }},
        {"places with an error", [](auto& it) { it.answer(answerNaming("Cafe"), 500); }},
        {"not JSON", [](auto& it) { it.answer("<html>"); }},
        {"cut off", [](auto& it) { it.answer(answerNaming("Cafe").substr(0, 60)); }},
        {"nothing", [](auto& it) { it.answer(""); }},
        {"too much",
            [](auto& it) { it.answer(answerNaming("Cafe") + std::string(2'000'000, ' ')); }},
        {"silence", [](auto& it) { it.hold(); }},
        {"no service", [](auto& it) { it.stop(); }},
    };
    geocoder.answer(answerNaming("Cafe"));
    for (const auto& [name, prepare] : cases) {
        SCOPED_TRACE(name);
        listener.told.clear();
        completer->setQueryFragment("cafe");
        waitForNews();
        prepare(geocoder);
        completer->setQueryFragment("cafes");
        waitForNews(2);
        EXPECT_EQ(listener.told, (Texts{"Cafe;", "failure"}));
        EXPECT_TRUE(completer->results().empty());
        geocoder.answer(answerNaming("Cafe"));
    }
}

TEST_F(GeocodingTest, onlyWhatWasAskedForIsSuggested)
{
    geocoder.answer(
        R"({"features":[{"geometry":{"coordinates":[2,1]},"properties":)"
        R"({"name":"Quay","osm_key":"highway"}},{"geometry":{"coordinates":[2,1]},"properties":)"
        R"({"name":"Cafe","osm_key":"amenity"}}]})");
    struct Case {
        std::uint32_t types;
        std::string titles;
    };
    for (const auto& [types, titles] :
        std::initializer_list<Case>{{1, "Quay;"}, {2, "Cafe;"}, {3, "Quay;Cafe;"}, {0, ""}}) {
        completer->setResultTypes(types);
        completer->setQueryFragment("a");
        waitForNews(listener.told.size() + 1);
        EXPECT_EQ(listener.told.back(), titles);
    }
}

TEST_F(GeocodingTest, answersAreKeptUntilTheCacheIsEmptied)
{
    const auto ask = [&](const auto& completer) {
        completer->setDelegate(&listener);
        completer->setQueryFragment("cafe");
        waitForNews(listener.told.size() + 1);
        EXPECT_EQ(listener.told.back(), "Cafe;");
        return geocoder.questions().size();
    };
    geocoder.answer(answerNaming("Cafe"), 200, "max-age=600");
    {
        gtk::GtkURLCache first(folder);
        const auto completer = makeCompleter(geocoder.address(), first);
        EXPECT_EQ(ask(completer), 1u);
        EXPECT_EQ(ask(completer), 1u);
    }
    {
        gtk::GtkURLCache nextLaunch(folder);
        EXPECT_EQ(ask(makeCompleter(geocoder.address(), nextLaunch)), 1u);
    }
    {
        gtk::GtkURLCache unused(folder); // emptied in a launch that never searched
        unused.removeAllCachedResponses();
    }
    gtk::GtkURLCache last(folder);
    const auto completer = makeCompleter(geocoder.address(), last);
    EXPECT_EQ(ask(completer), 2u);
    EXPECT_EQ(ask(completer), 2u);
    last.removeAllCachedResponses();
    EXPECT_EQ(ask(completer), 3u);
}

TEST_F(GeocodingTest, aSuggestionIsFoundWhereItWasShown)
{
    gtk::GtkDispatchQueue queue;
    geocoder.answer(answerNaming("Cafe"));
    completer->setQueryFragment("cafe");
    waitForNews();
    geocoder.stop();

    std::optional<platform::MKLocalSearch::Response> found;
    int answers = 0;
    const auto search = [&](std::shared_ptr<const platform::MKLocalSearchCompletion> suggestion) {
        answers = 0;
        gtk::GtkLocalSearch({suggestion}, queue)
            .start([&](const auto& response, const auto& error) {
                ++answers;
                found = response;
                EXPECT_FALSE(error);
            });
        EXPECT_EQ(answers, 0) << "answered inside the call";
        EXPECT_TRUE(until([&] { return answers > 0; }));
    };
    search(completer->results().front());
    ASSERT_TRUE(found && found->mapItems.size() == 1);
    EXPECT_EQ(found->mapItems.front().placemark.coordinate,
        (platform::CLLocationCoordinate2D{.latitude = 1, .longitude = 2}));
    search(std::make_shared<platform::MKLocalSearchCompletion>("somebody", "else's"));
    EXPECT_FALSE(found);
}

TEST_F(GeocodingTest, theUsersCertificateCountsForItsHostOnly)
{
    DemoServiceProcess service;
    const auto environment = service.clientEnvironment();
    const auto host = platform::URL::fromString(service.origin())->host().value();
    const auto elsewhere = "https://elsewhere.localhost:" + std::to_string(service.port());
    struct Case {
        std::string address;
        Texts hosts; // that the certificate is trusted for
        bool isTrusted;
    };
    const auto path = environment.at("VELMARO_SERVICE_CERTIFICATE");
    const Case cases[] = {
        {service.origin(), {host}, true},
        {service.origin() + "/", {host}, true},
        {service.origin(), {}, false},
        {elsewhere, {host}, false},
        {service.origin(), {"elsewhere.localhost"}, false},
    };
    for (const auto& [address, hosts, isTrusted] : cases) {
        gtk::GtkLocalSearchCompleter completer(
            std::make_shared<gtk::GeocodingService>(
                gtk::GeocodingService::Options{
                    .address = address, .trust = std::make_shared<gtk::HostTrust>(hosts, path)},
                cache),
            pause);
        completer.setDelegate(&listener);
        listener.told.clear();
        completer.setQueryFragment("a");
        waitForNews();
        EXPECT_EQ(listener.told.front() != "failure", isTrusted) << address;
        EXPECT_EQ(completer.results().empty(), !isTrusted);
    }
}

} // namespace desktop
