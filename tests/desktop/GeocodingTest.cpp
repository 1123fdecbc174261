// Places for a typed text, from a geocoding service.

#include "harness/MainLoop.h"
#include "platform/gtk/mapkit/GeocodedPlace.h"
#include "platform/gtk/mapkit/GtkLocalSearchCompleter.h"
#include "platform/mapkit/MKLocalSearchCompleterDelegate.h"
#include "webview/PageServer.h"

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
        {R"({"city":"Ellery","country":"Islands"})", "Ellery, Islands", "Ellery, Islands"},
        {R"({"name":"two\nlines\u0000\t'\\\"","city":5,"street":null})", "two lines  '\\\"", ""},
    };
    for (const auto& expected : cases) {
        const auto places = GeocodedPlace::fromAnswer(answerWith(expected.properties));
        ASSERT_TRUE(places && places->size() == 1) << expected.properties;
        EXPECT_EQ(places->front().title, expected.title);
        EXPECT_EQ(places->front().subtitle, expected.subtitle);
        EXPECT_EQ(places->front().isAddress, expected.isAddress);
    }
}

class GeocodingTest : public testing::Test {
protected:
    GeocodingTest()
    {
        Gio::init();
        answer(answerNaming("Cafe"));
    }

    std::unique_ptr<gtk::GtkLocalSearchCompleter> makeCompleter(gtk::GtkURLCache& cache)
    {
        const gtk::GeocodingService::Options options{
            .address = server.url(""),
            .trust = std::make_shared<gtk::HostTrust>(
                std::vector<std::string>{"localhost"}, VELMARO_CERTIFICATES "/server.pem"),
            .secondsToWait = 1,
        };
        auto completer = std::make_unique<gtk::GtkLocalSearchCompleter>(
            std::make_shared<gtk::GeocodingService>(options, cache), pause);
        completer->setDelegate(&listener);
        return completer;
    }

    void answer(const std::string& body, int status = 200, const char* cacheControl = "no-store")
    {
        server.pages["/api"] = {
            .body = body, .headers = {{"Cache-Control", cacheControl}}, .status = status};
    }

    void answerLate(std::size_t request, const std::string& name)
    {
        answer(answerNaming(name));
        server.answerLate(request);
    }

    void ask(const std::string& text)
    {
        const auto count = server.requests.size() + 1;
        completer->setQueryFragment(text);
        ASSERT_TRUE(until([&] { return server.requests.size() == count; }));
    }

    void waitForNews(std::size_t count = 1)
    {
        EXPECT_TRUE(until([&] { return listener.told.size() >= count; }));
    }

    PageServer server;
    Listener listener;
    const std::filesystem::path folder = std::filesystem::path(std::getenv("HOME")) / "responses";
    gtk::GtkURLCache cache{folder};
    std::unique_ptr<gtk::GtkLocalSearchCompleter> completer = makeCompleter(cache);
};

TEST_F(GeocodingTest, asksOnceWhenTheTypingPauses)
{
    for (const auto* text : {"c", "ca", "caf", "caf\u00e9 & bar?#/%+"}) {
        completer->setQueryFragment(text);
        EXPECT_TRUE(listener.told.empty()) << "told inside the call";
    }
    waitForNews();
    EXPECT_EQ(listener.told, Texts{"Cafe;"});
    completer->setQueryFragment(" \t\u00a0"); // has no suggestions and needs no network
    waitForNews(2);
    EXPECT_EQ(listener.told.back(), "");
    ASSERT_EQ(server.requests.size(), 1u);
    EXPECT_EQ(server.requests[0].query, "limit=10;q=caf\u00e9 & bar?#/%+;");
}

TEST_F(GeocodingTest, aLateAnswerToAnEarlierTextIsDropped)
{
    server.pages["/api"].isSilent = true;
    ask("first");
    ask("second");
    answerLate(1, "Second");
    answerLate(0, "First");
    waitForNews();
    runWaitingEvents();
    EXPECT_EQ(listener.told, Texts{"Second;"});
}

TEST_F(GeocodingTest, everyFailureIsToldAndEmptiesTheResults)
{
    struct Case {
        const char* name;
        std::function<void()> prepare;
    };
    const auto cafe = answerNaming("Cafe");
    const Case cases[] = {
        {"places with an error", [&] { answer(cafe, 500); }},
        {"not JSON", [&] { answer("<html>"); }},
        {"too much", [&] { answer(cafe + std::string(2'000'000, ' ')); }},
        {"silence", [&] { server.pages["/api"].isSilent = true; }},
        {"no service", [&] { server.stop(); }},
    };
    for (const auto& [name, prepare] : cases) {
        SCOPED_TRACE(name);
        listener.told.clear();
        answer(cafe);
        completer->setQueryFragment("cafe");
        waitForNews();
        prepare();
        completer->setQueryFragment("cafes");
        waitForNews(2);
        EXPECT_EQ(listener.told, (Texts{"Cafe;", "failure"}));
        EXPECT_TRUE(completer->results().empty());
    }
}

TEST_F(GeocodingTest, answersAreKeptUntilTheCacheIsEmptied)
{
    const auto knowsAnswer = [&](gtk::GtkURLCache& cache) {
        const auto questions = server.requests.size();
        const auto asking = makeCompleter(cache);
        asking->setQueryFragment("cafe");
        waitForNews(listener.told.size() + 1);
        EXPECT_EQ(listener.told.back(), "Cafe;");
        return server.requests.size() == questions;
    };
    answer(answerNaming("Cafe"), 200, "max-age=600");
    {
        gtk::GtkURLCache first(folder);
        EXPECT_FALSE(knowsAnswer(first));
        EXPECT_TRUE(until([&] { return knowsAnswer(first); })); // it is written in the background
    }
    gtk::GtkURLCache next(folder);
    EXPECT_TRUE(knowsAnswer(next));
    next.removeAllCachedResponses();
    EXPECT_FALSE(knowsAnswer(next));
}

} // namespace desktop
