#pragma once

#include "platform/gtk/foundation/Timer.h"
#include "platform/gtk/mapkit/GeocodedPlace.h"
#include "platform/gtk/mapkit/GeocodingService.h"
#include "platform/mapkit/MKLocalSearchCompleter.h"

namespace gtk {

// A suggestion that knows where its place is: the service tells that along with the name.
class GtkLocalSearchCompletion final : public platform::MKLocalSearchCompletion {
public:
    explicit GtkLocalSearchCompletion(const GeocodedPlace& place)
        : MKLocalSearchCompletion(place.title, place.subtitle)
        , coordinate(place.coordinate)
    {
    }

    const platform::CLLocationCoordinate2D coordinate;
};

// Suggests places that a geocoding service finds. It asks when the typing pauses, one question at a
// time: a new text takes the last question back, so no answer can come out of order.
class GtkLocalSearchCompleter final : public platform::MKLocalSearchCompleter {
public:
    static constexpr double usualPause = 0.2; // seconds

    explicit GtkLocalSearchCompleter(
        std::shared_ptr<GeocodingService> service, double pause = usualPause);

    void setDelegate(platform::MKLocalSearchCompleterDelegate* delegate) override;
    std::uint32_t resultTypes() const override { return resultTypes_; }
    void setResultTypes(std::uint32_t types) override { resultTypes_ = types; }
    const std::string& queryFragment() const override { return queryFragment_; }
    void setQueryFragment(std::string fragment) override;
    const platform::MKLocalSearchCompletions& results() const override { return results_; }

private:
    void ask(const std::string& text);
    void receive(const GeocodingService::Answer& answer);
    void publish(platform::MKLocalSearchCompletions results);
    void fail(const platform::NSError& error);

    const std::shared_ptr<GeocodingService> service_;
    const double pause_;
    platform::MKLocalSearchCompleterDelegate* delegate_ = nullptr;
    std::uint32_t resultTypes_ = address | pointOfInterest;
    std::string queryFragment_;
    platform::MKLocalSearchCompletions results_;
    Timer timer_; // runs from a key to the question
    GeocodingService::Question question_; // about the text; null until the typing pauses
};

} // namespace gtk
