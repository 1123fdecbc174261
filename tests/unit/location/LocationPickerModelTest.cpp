#include "location/LocationPickerModel.h"

#include "FailureRecorder.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace velmaro {

namespace {

using platform::CLAuthorizationStatus;
using platform::CLLocation;
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

const std::vector<Result> noResults;
const std::vector<Result> refusal = {failure(LocationError::denied)};

std::vector<CLLocation> locationsAt(std::initializer_list<platform::CLLocationCoordinate2D> places)
{
    std::vector<CLLocation> locations;
    for (const auto& coordinate : places)
        locations.push_back({.coordinate = coordinate});
    return locations;
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

TEST_F(LocationPickerModelTest, asksForNothingUntilTheUserDoes)
{
    EXPECT_EQ(manager->desiredAccuracy(), 100);
    EXPECT_EQ(completer->resultTypes(), 3u);
    EXPECT_EQ(manager->authorizationRequests + manager->locationRequests, 0);
    EXPECT_EQ(completer->queryFragments.size(), 1u);
    EXPECT_EQ(model->query(), "");
    EXPECT_EQ(model->statusMessage(), std::nullopt);
    EXPECT_FALSE(model->isResolving());
}

TEST_F(LocationPickerModelTest, everyTextReachesTheCompleterUnchangedAndAfterItIsPublished)
{
    std::size_t fragmentsWhenPublished = 0;
    ui::Observation observation([this] { model->query(); },
        [&] { fragmentsWhenPublished = completer->queryFragments.size(); });
    const auto binding = model->queryBinding();
    for (const std::string text : {" ", "  caf\u00e9 ", "", ""}) {
        const auto fragments = completer->queryFragments.size();
        binding.set(text);
        EXPECT_EQ(fragmentsWhenPublished, fragments);
        EXPECT_EQ(completer->queryFragments.size(), fragments + 1);
        EXPECT_EQ(completer->queryFragment(), text);
        EXPECT_EQ(binding.get(), text);
    }
}

TEST_F(LocationPickerModelTest, suggestionsFollowTheCompleterOnly)
{
    completer->simulateResults({{"b", "1"}, {"a", ""}, {"b", "2"}});
    EXPECT_EQ(model->suggestions(), completer->results());
    model->setQuery("");
    EXPECT_EQ(model->suggestions().size(), 3u);
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
        {"", "", ""},
        {" ", "Joe's \\", "  \u2014 Joe's \\"},
    };
    for (const auto& [title, subtitle, label] : cases) {
        resolve(title, subtitle).simulatePlaces({{1.5, -2.5}, {3, 4}});
        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(results.back(), Result(PickedLocation{1.5, -2.5, label}));
    }
    EXPECT_EQ(model->statusMessage(), std::nullopt);
}

TEST_F(LocationPickerModelTest, aSearchEndsInALaterTurn)
{
    auto& search = resolve("Cafe");
    EXPECT_EQ(search.request.completion, model->suggestions().front());
    EXPECT_TRUE(model->isResolving());
    search.simulatePlaces({{1, 2}});
    EXPECT_TRUE(model->isResolving());
    EXPECT_TRUE(results.empty());
    platform.mainQueue().runUntilIdle();
    EXPECT_FALSE(model->isResolving());
    EXPECT_EQ(results.size(), 1u);
}

TEST_F(LocationPickerModelTest, aSearchEndsWithAPlaceElseWithItsError)
{
    using Response = platform::MKLocalSearch::Response;
    struct Case {
        std::optional<Response> response;
        std::optional<NSError> error;
        Result expected;
        std::string status; // stays when a place is found
    };
    const Response place{{{.placemark = {.coordinate = {1, 2}}}}};
    const Case cases[] = {
        {std::nullopt, std::nullopt, failure(LocationError::notFound), notFoundText},
        {Response{}, std::nullopt, failure(LocationError::notFound), notFoundText},
        {std::nullopt, lostNetwork, failure(lostNetwork), lostNetwork.localizedDescription},
        {Response{}, lostNetwork, failure(lostNetwork), lostNetwork.localizedDescription},
        {place, lostNetwork, PickedLocation{1, 2, "Cafe"}, lostNetwork.localizedDescription},
    };
    for (const auto& [response, error, expected, status] : cases) {
        resolve("Cafe").simulateCompletion(response, error);
        platform.mainQueue().runUntilIdle();
        EXPECT_EQ(results.back(), expected);
        EXPECT_EQ(model->statusMessage(), status);
        EXPECT_FALSE(model->isResolving());
    }
}

TEST_F(LocationPickerModelTest, searchesOutliveTheModelAndAnswerInTheirOwnOrder)
{
    auto& found = resolve("found");
    auto& lost = resolve("lost");
    const std::weak_ptr weakModel = model;
    model.reset();
    EXPECT_TRUE(weakModel.expired());
    lost.simulateCompletion(std::nullopt);
    found.simulatePlaces({{1, 2}});
    platform.mainQueue().runUntilIdle();
    const std::vector<Result> expected = {
        failure(LocationError::notFound), PickedLocation{1, 2, "found"}};
    EXPECT_EQ(results, expected);
}

TEST_F(LocationPickerModelTest, thePermissionDecidesWhatAPositionRequestDoes)
{
    struct Case {
        CLAuthorizationStatus status;
        int questions, requests; // where that has been decided before
        int lateRequests; // where it is decided while the request waits
        bool isRefused;
    };
    const Case cases[] = {
        {CLAuthorizationStatus::notDetermined, 1, 0, 0, false},
        {CLAuthorizationStatus::restricted, 0, 0, 0, true},
        {CLAuthorizationStatus::denied, 0, 0, 0, true},
        {CLAuthorizationStatus::authorizedAlways, 0, 1, 1, false},
        {CLAuthorizationStatus::authorizedWhenInUse, 0, 1, 0, false},
        {static_cast<CLAuthorizationStatus>(9), 0, 1, 0, false},
    };
    for (const auto& [status, questions, requests, lateRequests, isRefused] : cases) {
        for (const bool isLate : {false, true}) {
            SCOPED_TRACE(std::to_string(static_cast<int>(status)) + (isLate ? " late" : ""));
            results.clear();
            manager->simulateAuthorization(isLate ? CLAuthorizationStatus::notDetermined : status);
            manager->authorizationRequests = manager->locationRequests = 0;
            model->requestCurrentLocation(record());
            if (isLate)
                manager->simulateAuthorization(status);
            EXPECT_EQ(manager->authorizationRequests, isLate ? 1 : questions);
            EXPECT_EQ(manager->locationRequests, isLate ? lateRequests : requests);
            EXPECT_EQ(model->isResolving(), !isRefused);
            EXPECT_EQ(model->statusMessage(), isRefused ? deniedText : locatingText);
            EXPECT_EQ(results, isRefused ? refusal : noResults);
            manager->simulateLocations(locationsAt({{0, 0}})); // ends what is pending
        }
    }
}

TEST_F(LocationPickerModelTest, aPositionRequestEndsWithTheLastLocationOrTheFailureOfTheService)
{
    model->requestCurrentLocation(record());
    manager->simulateLocations({});
    EXPECT_EQ(model->statusMessage(), locatingText);
    EXPECT_TRUE(model->isResolving());

    manager->simulateLocations(locationsAt({{1, 1}, {2, 2}, {3, -3}}));
    EXPECT_EQ(results, std::vector<Result>({PickedLocation{3, -3, "Current Location"}}));
    EXPECT_EQ(model->statusMessage(), std::nullopt);
    EXPECT_FALSE(model->isResolving());

    manager->simulateLocations(locationsAt({{4, 4}}));
    EXPECT_EQ(results.size(), 1u);

    model->requestCurrentLocation(record());
    manager->simulateFailure(lostNetwork);
    EXPECT_EQ(results.back(), failure(lostNetwork));
    EXPECT_EQ(model->statusMessage(), lostNetwork.localizedDescription);
    EXPECT_FALSE(model->isResolving());
}

TEST_F(LocationPickerModelTest, whatNobodyAskedForChangesTheStatusOnly)
{
    for (const auto status :
        {CLAuthorizationStatus::denied, CLAuthorizationStatus::authorizedAlways})
        manager->simulateAuthorization(status);
    EXPECT_EQ(manager->locationRequests, 0);
    EXPECT_EQ(model->statusMessage(), std::nullopt);
    manager->simulateFailure(lostNetwork);
    EXPECT_EQ(model->statusMessage(), lostNetwork.localizedDescription);
    resolve("Cafe");
    manager->simulateLocations(locationsAt({{1, 1}}));
    EXPECT_EQ(model->statusMessage(), std::nullopt);
    EXPECT_FALSE(model->isResolving());
    EXPECT_TRUE(results.empty());
}

TEST_F(LocationPickerModelTest, aSearchThatEndsClearsTheFlagOfARunningPositionRequest)
{
    model->requestCurrentLocation(record());
    resolve("Cafe").simulatePlaces({{1, 2}});
    platform.mainQueue().runUntilIdle();
    EXPECT_FALSE(model->isResolving());
    EXPECT_EQ(model->statusMessage(), locatingText);
    manager->simulateLocations(locationsAt({{3, 4}}));
    EXPECT_EQ(results.size(), 2u);
}

TEST_F(LocationPickerModelTest, aSecondPositionRequestDropsTheFirstCallback)
{
    bool wasFirstCalled = false;
    model->requestCurrentLocation([&](const auto&) { wasFirstCalled = true; });
    model->requestCurrentLocation(record());
    EXPECT_EQ(manager->authorizationRequests, 2);
    manager->simulateLocations(locationsAt({{1, 1}}));
    EXPECT_FALSE(wasFirstCalled);
    EXPECT_EQ(results.size(), 1u);
}

TEST_F(LocationPickerModelTest, aRequestMadeFromTheCallbackIsForgotten)
{
    model->requestCurrentLocation([&](const auto&) { model->requestCurrentLocation(record()); });
    manager->simulateLocations(locationsAt({{1, 1}}));
    EXPECT_EQ(model->statusMessage(), locatingText);
    manager->simulateLocations(locationsAt({{2, 2}}));
    EXPECT_TRUE(results.empty());
}

TEST_F(LocationPickerModelTest, theCallbackMayDropTheModel)
{
    model->requestCurrentLocation([&](const auto&) { model.reset(); });
    manager->simulateLocations(locationsAt({{1, 1}}));
    EXPECT_FALSE(model);

    FailureRecorder failures; // the model no longer listens
    manager->simulateLocations(locationsAt({{1, 1}}));
    completer->simulateResults({});
    EXPECT_EQ(failures.messages.size(), 2u);
}

} // namespace velmaro
