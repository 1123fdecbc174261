#pragma once

#include "platform/gtk/mapkit/GeocodedPlace.h"
#include "platform/mapkit/MKLocalSearchCompletion.h"

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

} // namespace gtk
