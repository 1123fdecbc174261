#pragma once

#include "platform/mapkit/MKLocalSearch.h"

namespace simulated {

// A search that the test answers.
class SimulatedLocalSearch final : public platform::MKLocalSearch {
public:
    explicit SimulatedLocalSearch(Request request)
        : request(std::move(request))
    {
    }

    void start(CompletionHandler completionHandler) override;

    // Whether the search was started and has not been answered yet.
    bool isRunning() const { return static_cast<bool>(handler_); }

    // The search ends. Fails the test unless it is running.
    void simulateCompletion(const std::optional<Response>& response,
        const std::optional<platform::NSError>& error = std::nullopt);

    // It ends with places at these coordinates.
    void simulatePlaces(const std::vector<platform::CLLocationCoordinate2D>& coordinates);

    const Request request;

private:
    CompletionHandler handler_;
    bool wasStarted_ = false;
};

} // namespace simulated
