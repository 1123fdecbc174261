#pragma once

#include "platform/corelocation/CLLocation.h"

namespace platform {

// Where a place is. It is a plain value.
struct MKPlacemark {
    CLLocationCoordinate2D coordinate;
};

// A place that a search has found.
struct MKMapItem {
    MKPlacemark placemark;
};

} // namespace platform
