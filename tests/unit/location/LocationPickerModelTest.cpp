#include "location/LocationPickerModel.h"

#include "platform/simulated/Failure.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace velmaro {

namespace {

using platform::CLAuthorizationStatus;
using platform::NSError;
using LocationError = LocationPickerModel::LocationError;
using Result = LocationPickerModel::Result;

constexpr auto deniedText =
    "Location access was denied. Enable it in System Settings to use your current location.";
constexpr auto notFoundText = "Couldn't resolve that address. Try a more specific query.";
constexpr auto locatingText = "Locating\u2026";

const NSError lostNetwork{"The network is gone."};

Result failure(LocationPickerModel::Error error)
{
    return Result(std::move(error));
}

} // namespace

class LocationPickerModelTest : public testing::Test {
protected:
    simulated::SimulatedPlatform platform;
    std::shared_ptr<LocationPickerModel> model = LocationPickerModel::make();
    std::shared_ptr<simulated::SimulatedLocationManager> manager =
        platform.locationManagers().back().lock();
    std::shared_ptr<simulated::SimulatedLocalSearchCompleter> completer =
        platform.searchCompleters().back().lock();
    std::vector<Result> results;

    LocationPickerModel::Completion record()
    {
        return [this](const Result& result) { results.push_back(result); };
    }

    // Asks for the place of a suggestion and returns the search that is running now.
    simulated::SimulatedLocalSearch& resolve(
        const std::string& title, const std::string& subtitle = "")
    {
        completer->simulateResults({{title, subtitle}});
        model->resolve(model->suggestions().front(), record());
        return *platform.localSearches().back();
    }
};

TEST_F(LocationPickerModelTest, everyTextReachesTheCompleterWhichDecidesTheSuggestions)
{
    EXPECT_EQ(completer->resultTypes(), 3u);
    model->queryBinding().set("  caf\u00e9 ");
    EXPECT_EQ(completer->queryFragment(), "  caf\u00e9 ");
    completer->simulateResults({{"b", "1"}, {"a", ""}, {"b", "2"}});
    EXPECT_EQ(model->suggestions(), completer->results());
    model->requestCurrentLocation(record());
    completer->simulateFailure(lostNetwork);
    EXPECT_TRUE(model->suggestions().empty());
    EXPECT_EQ(model->statusMessage(), locatingText) << "the failure is not the position's";
}

TEST_F(LocationPickerModelTest, labelsJoinWhatASuggestionSays)
{
    struct Case {
        std::string title, subtitle, label;
    };
    const Case cases[] = {
        {"Cafe", "1 Main St", "Cafe \u2014 1 Main St"},
        {"Cafe", "", "Cafe"},
        {"", "1 Main St", "1 Main St"},
    };
    for (const auto& [title, subtitle, label] : cases) {
        resolve(title, subtitle).simulatePlaces({{1.5, -2.5}, {3, 4}});
        EXPECT_TRUE(model->isResolving()) << "the answer may come at any moment";
        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(results.back(), Result(PickedLocation{1.5, -2.5, label}));
        EXPECT_FALSE(model->isResolving());
    }
}

TEST_F(LocationPickerModelTest, aSearchWithoutAPlaceEndsWithItsError)
{
    using Response = platform::MKLocalSearch::Response;
    const std::pair<std::optional<NSError>, std::string> cases[] = {
        {std::nullopt, notFoundText},
        {lostNetwork, lostNetwork.localizedDescription},
    };
    for (const auto& [error, status] : cases) {
        resolve("Cafe").simulateCompletion(Response{}, error);
        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(results.back(), error ? failure(*error) : failure(LocationError::notFound));
        EXPECT_EQ(model->statusMessage(), status);
        EXPECT_FALSE(model->isResolving());
    }
}

TEST_F(LocationPickerModelTest, thePermissionDecidesWhatAPositionRequestDoes)
{
    using enum CLAuthorizationStatus;
    struct Case {
        CLAuthorizationStatus before;
        CLAuthorizationStatus answer; // to the question, where there is one
        int questions, requests;
    };
    const Case cases[] = {
        {notDetermined, denied, 1, 0},
        {notDetermined, authorizedAlways, 1, 1},
        {restricted, denied, 0, 0},
        {denied, denied, 0, 0},
        {authorizedAlways, {}, 0, 1},
        {authorizedWhenInUse, {}, 0, 1},
    };
    for (const auto& [before, answer, questions, requests] : cases) {
        results.clear();
        manager->simulateAuthorization(before);
        manager->authorizationRequests = manager->locationRequests = 0;
        model->requestCurrentLocation(record());
        if (questions)
            manager->simulateAuthorization(answer);
        EXPECT_EQ(manager->authorizationRequests, questions);
        EXPECT_EQ(manager->locationRequests, requests);
        const bool isRefused = !requests;
        EXPECT_EQ(model->isResolving(), !isRefused);
        EXPECT_EQ(model->statusMessage(), isRefused ? deniedText : locatingText);
        EXPECT_EQ(results.size(), isRefused ? 1u : 0u);
        manager->simulateLocations({{{0, 0}}}); // ends what is pending
    }
}

TEST_F(LocationPickerModelTest, aPositionRequestEndsWithTheLastLocationOrTheFailureOfTheService)
{
    model->requestCurrentLocation(record());
    manager->simulateLocations({});
    EXPECT_TRUE(model->isResolving());
    manager->simulateLocations({{{1, 1}}, {{3, -3}}});
    EXPECT_EQ(results, std::vector<Result>({PickedLocation{3, -3, "Current Location"}}));
    EXPECT_EQ(model->statusMessage(), std::nullopt);
    EXPECT_FALSE(model->isResolving());
    manager->simulateAuthorization(CLAuthorizationStatus::authorizedAlways); // nobody asked
    manager->simulateLocations({{{4, 4}}});
    EXPECT_EQ(results.size(), 1u);
    EXPECT_EQ(manager->locationRequests, 0);

    model->requestCurrentLocation(record());
    manager->simulateFailure(lostNetwork);
    EXPECT_EQ(results.back(), failure(lostNetwork));
    EXPECT_EQ(model->statusMessage(), lostNetwork.localizedDescription);
}

TEST_F(LocationPickerModelTest, aSearchOutlivesTheModel)
{
    auto& search = resolve("found");
    model.reset();
    search.simulatePlaces({{1, 2}});
    platform.mainQueue().runUntilIdle();
    EXPECT_EQ(results, std::vector<Result>({PickedLocation{1, 2, "found"}}));
}

TEST_F(LocationPickerModelTest, theCallbackMayDropTheModelWhichListensNoLonger)
{
    model->requestCurrentLocation([&](const auto&) { model.reset(); });
    manager->simulateLocations({{{1, 1}}});
    EXPECT_FALSE(model);

    int complaints = 0;
    simulated::setFailureHandler([&](const auto&) { ++complaints; });
    manager->simulateLocations({{{1, 1}}});
    completer->simulateResults({});
    simulated::setFailureHandler([](const auto& message) { ADD_FAILURE() << message; });
    EXPECT_EQ(complaints, 2);
}

} // namespace velmaro
