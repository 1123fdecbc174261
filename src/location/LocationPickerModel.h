#pragma once

#include "location/PickedLocation.h"
#include "platform/corelocation/CLLocationManagerDelegate.h"
#include "platform/foundation/NSError.h"
#include "platform/mapkit/MKLocalSearchCompleterDelegate.h"
#include "platform/mapkit/MKLocalSearchCompletion.h"
#include "platform/ui/Published.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace velmaro {

// What the location picker does: it suggests places for a typed text, finds where a suggestion is,
// and finds where the user is. One for each time the picker is shown. Main thread only.
class LocationPickerModel final : public platform::CLLocationManagerDelegate,
                                  public platform::MKLocalSearchCompleterDelegate,
                                  public std::enable_shared_from_this<LocationPickerModel> {
public:
    enum class LocationError {
        denied, // the user's location may not be used
        notFound, // no place found, no error reported.
    };

    using Error = std::variant<LocationError, platform::NSError>;
    using Result = std::variant<PickedLocation, Error>;
    using Completion = std::function<void(const Result&)>;
    using Suggestion = std::shared_ptr<const platform::MKLocalSearchCompletion>;

    // Asks nothing of the location service yet, not even permission.
    static std::shared_ptr<LocationPickerModel> make();
    ~LocationPickerModel();

    // The text in the search field. Changed through `setQuery`.
    ui::Published<std::string> query;

    // For the last text that was answered, best first.
    ui::Published<platform::MKLocalSearchCompletions> suggestions;

    // What the user should know about their last request; only a located position clears it.
    ui::Published<std::optional<std::string>> statusMessage;

    // Set by every request, cleared by the first that ends.
    ui::Published<bool> isResolving = false;

    // Any text goes to the completer as it is, blank or empty.
    void setQuery(const std::string& text);

    // Reads `query` and writes it through `setQuery`, for a text field. The model must outlive it.
    ui::Binding<std::string> queryBinding();

    // Finds the user's position, asking for permission first where that has not been done. Of
    // requests that overlap, only the last one's `completion` is called.
    void requestCurrentLocation(Completion completion);

    // Finds where `suggestion` is. Every request's `completion` is called, even when the model has
    // gone by then.
    void resolve(Suggestion suggestion, Completion completion);

    // What the status line says about an error.
    static std::string statusText(const Error& error);

    void completerDidUpdateResults(platform::MKLocalSearchCompleter& completer) override;
    void completerDidFailWithError(
        platform::MKLocalSearchCompleter& completer, const platform::NSError& error) override;
    void locationManagerDidChangeAuthorization(platform::CLLocationManager& manager) override;
    void locationManagerDidUpdateLocations(platform::CLLocationManager& manager,
        const std::vector<platform::CLLocation>& locations) override;
    void locationManagerDidFailWithError(
        platform::CLLocationManager& manager, const platform::NSError& error) override;

private:
    LocationPickerModel();

    void finishCurrentLocation(const Result& result);

    std::shared_ptr<platform::CLLocationManager> manager_;
    std::shared_ptr<platform::MKLocalSearchCompleter> completer_;
    Completion currentLocationContinuation_; // empty while no position is asked for
};

} // namespace velmaro
