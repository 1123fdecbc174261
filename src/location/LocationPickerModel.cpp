#include "location/LocationPickerModel.h"

#include "platform/corelocation/CLLocationManager.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/mapkit/MKLocalSearch.h"
#include "platform/mapkit/MKLocalSearchCompleter.h"
#include "platform/Platform.h"

namespace velmaro {

using platform::CLAuthorizationStatus;
using platform::CLLocationManager;
using platform::MKLocalSearch;
using platform::MKLocalSearchCompleter;
using platform::MKLocalSearchCompletion;
using platform::NSError;
using platform::Platform;

namespace {

constexpr auto deniedText =
    "Location access was denied. Enable it in System Settings to use your current location.";
constexpr auto notFoundText = "Couldn't resolve that address. Try a more specific query.";

std::string label(const MKLocalSearchCompletion& suggestion)
{
    if (suggestion.title.empty() || suggestion.subtitle.empty())
        return suggestion.title + suggestion.subtitle;
    return suggestion.title + " \u2014 " + suggestion.subtitle;
}

LocationPickerModel::Result result(const MKLocalSearchCompletion& suggestion,
    const std::optional<MKLocalSearch::Response>& response, const std::optional<NSError>& error)
{
    if (response && !response->mapItems.empty()) {
        const auto& coordinate = response->mapItems.front().placemark.coordinate;
        return PickedLocation{coordinate.latitude, coordinate.longitude, label(suggestion)};
    }
    if (error)
        return *error;
    return LocationPickerModel::LocationError::notFound;
}

} // namespace

std::shared_ptr<LocationPickerModel> LocationPickerModel::make()
{
    return std::shared_ptr<LocationPickerModel>(new LocationPickerModel);
}

LocationPickerModel::LocationPickerModel()
    : manager_(Platform::current().makeLocationManager())
    , completer_(Platform::current().makeLocalSearchCompleter())
{
    manager_->setDelegate(this);
    manager_->setDesiredAccuracy(platform::kCLLocationAccuracyHundredMeters);
    completer_->setDelegate(this);
    completer_->setResultTypes(
        MKLocalSearchCompleter::address | MKLocalSearchCompleter::pointOfInterest);
}

LocationPickerModel::~LocationPickerModel()
{
    manager_->setDelegate(nullptr);
    completer_->setDelegate(nullptr);
}

void LocationPickerModel::setQuery(const std::string& text)
{
    query = text;
    completer_->setQueryFragment(text);
}

ui::Binding<std::string> LocationPickerModel::queryBinding()
{
    return {[this] { return query(); }, [this](const std::string& text) { setQuery(text); }};
}

void LocationPickerModel::requestCurrentLocation(Completion completion)
{
    currentLocationContinuation_ = std::move(completion);
    statusMessage = "Locating\u2026";
    isResolving = true;

    switch (manager_->authorizationStatus()) {
    case CLAuthorizationStatus::restricted:
    case CLAuthorizationStatus::denied:
        finishCurrentLocation(LocationError::denied);
        break;
    case CLAuthorizationStatus::notDetermined:
        manager_->requestWhenInUseAuthorization(); // goes on once the user has decided
        break;
    default:
        manager_->requestLocation();
    }
}

void LocationPickerModel::resolve(Suggestion suggestion, Completion completion)
{
    isResolving = true;

    const auto search = Platform::current().makeLocalSearch({suggestion});
    search->start([weakModel = weak_from_this(), suggestion, completion](
                      const auto& response, const auto& error) {
        const auto finish = [=] {
            const auto outcome = result(*suggestion, response, error);
            const auto* failure = std::get_if<Error>(&outcome);
            if (const auto model = weakModel.lock()) {
                model->isResolving = false;
                if (failure)
                    model->statusMessage = statusText(*failure);
            }
            completion(outcome);
        };
        platform::DispatchQueue::main().async(finish);
    });
}

std::string LocationPickerModel::statusText(const Error& error)
{
    if (const auto* platformError = std::get_if<NSError>(&error))
        return platformError->localizedDescription;
    return std::get<LocationError>(error) == LocationError::denied ? deniedText : notFoundText;
}

void LocationPickerModel::completerDidUpdateResults(MKLocalSearchCompleter& completer)
{
    suggestions = completer.results();
}

void LocationPickerModel::completerDidFailWithError(MKLocalSearchCompleter&, const NSError&)
{
    suggestions = platform::MKLocalSearchCompletions();
}

void LocationPickerModel::locationManagerDidChangeAuthorization(CLLocationManager& manager)
{
    if (!currentLocationContinuation_)
        return;
    switch (manager.authorizationStatus()) {
    case CLAuthorizationStatus::restricted:
    case CLAuthorizationStatus::denied:
        finishCurrentLocation(LocationError::denied);
        break;
    case CLAuthorizationStatus::authorizedAlways:
        manager.requestLocation();
        break;
    default:
        break; // still waiting
    }
}

void LocationPickerModel::locationManagerDidUpdateLocations(
    CLLocationManager&, const std::vector<platform::CLLocation>& locations)
{
    if (locations.empty())
        return;
    const auto& coordinate = locations.back().coordinate;
    finishCurrentLocation(
        PickedLocation{coordinate.latitude, coordinate.longitude, "Current Location"});
}

void LocationPickerModel::locationManagerDidFailWithError(CLLocationManager&, const NSError& error)
{
    finishCurrentLocation(error);
}

void LocationPickerModel::finishCurrentLocation(const Result& result)
{
    const auto self = shared_from_this(); // the callee may drop the picker
    const auto* failure = std::get_if<Error>(&result);

    isResolving = false;
    statusMessage = failure ? std::optional(statusText(*failure)) : std::nullopt;
    // This is a copy, since the callee may ask again; that request's callback is dropped with this
    // one.
    if (const auto completion = currentLocationContinuation_)
        completion(result);
    currentLocationContinuation_ = nullptr;
}

} // namespace velmaro
