#pragma once

#include "FakeService.h"

namespace desktop {

// The location service on the private system bus.
class FakeGeoClue {
public:
    enum class Manner {
        grants, // tells all its places, one after the other
        denies,
        staysSilent, // never answers at all
        neverDecides, // as when the desktop asks a user who has gone
    };

    struct Place {
        double latitude = 0;
        double longitude = 0;
        double accuracy = 0; // metres
    };

    explicit FakeGeoClue(Manner manner, std::vector<Place> places = {});

    const FakeService& service() const { return service_; }

private:
    void start(const FakeService::Call& call);

    const Manner manner_;
    const std::vector<Place> places_;
    FakeService service_; // last, as its methods use the others
};

} // namespace desktop
