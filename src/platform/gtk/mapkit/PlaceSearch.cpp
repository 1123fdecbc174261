#include "platform/gtk/mapkit/PlaceSearch.h"

#include "platform/gtk/mapkit/PlaceCompletion.h"

namespace gtk {

PlaceSearch::PlaceSearch(Request request, platform::DispatchQueue& queue)
    : request_(std::move(request))
    , queue_(queue)
{
}

void PlaceSearch::start(CompletionHandler completionHandler)
{
    std::optional<Response> response;
    if (const auto* place = dynamic_cast<const PlaceCompletion*>(request_.completion.get()))
        response = Response{.mapItems = {{.placemark = {.coordinate = place->coordinate}}}};
    queue_.async([response, completionHandler = std::move(completionHandler)] {
        completionHandler(response, std::nullopt);
    });
}

} // namespace gtk
