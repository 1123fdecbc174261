#pragma once

#include "FakeService.h"

namespace desktop {

// The location service on the private system bus.
class FakeGeoClue final : public FakeService {
public:
    enum class Manner {
        grants, // tells all its places, one after the other
        denies,
        fails,
        staysSilent, // never answers at all
        neverDecides, // as when the desktop asks a user who has gone
    };

    struct Place {
        double latitude = 0;
        double longitude = 0;
        double accuracy = 0; // metres
    };

    explicit FakeGeoClue(Manner manner, std::vector<Place> places = {});
    ~FakeGeoClue() override { stop(); }

    // The computer has moved, or is known better.
    void tell(const Place& place);

private:
    void registerObjects() override;
    void handle(
        const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation) override;
    GVariant* property(const std::string& path, const std::string& name) override;
    void start(GDBusMethodInvocation* invocation);
    void announce(const Place& place);

    const Manner manner_;
    const std::vector<Place> places_;
    std::vector<Place> told_;
};

} // namespace desktop
