#include "platform/simulated/SimulatedLocalSearch.h"

#include "platform/simulated/Failure.h"

#include <utility>

namespace simulated {

void SimulatedLocalSearch::start(CompletionHandler completionHandler)
{
    if (std::exchange(wasStarted_, true))
        return fail("a search was started twice");
    handler_ = std::move(completionHandler);
}

void SimulatedLocalSearch::simulateCompletion(
    const std::optional<Response>& response, const std::optional<platform::NSError>& error)
{
    if (!handler_)
        return fail("a search that is not running cannot end");
    std::exchange(handler_, nullptr)(response, error);
}

void SimulatedLocalSearch::simulatePlaces(
    const std::vector<platform::CLLocationCoordinate2D>& coordinates)
{
    Response response;
    for (const auto& coordinate : coordinates)
        response.mapItems.push_back({.placemark = {.coordinate = coordinate}});
    simulateCompletion(response);
}

} // namespace simulated
