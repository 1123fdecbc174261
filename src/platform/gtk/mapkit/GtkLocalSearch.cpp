#include "platform/gtk/mapkit/GtkLocalSearch.h"

#include "platform/gtk/mapkit/GtkLocalSearchCompleter.h"

namespace gtk {

GtkLocalSearch::GtkLocalSearch(Request request, platform::DispatchQueue& queue)
    : request_(std::move(request))
    , queue_(queue)
{
}

void GtkLocalSearch::start(CompletionHandler completionHandler)
{
    std::optional<Response> response;
    if (const auto* place =
            dynamic_cast<const GtkLocalSearchCompletion*>(request_.completion.get()))
        response = Response{.mapItems = {{.placemark = {.coordinate = place->coordinate}}}};
    queue_.async([response, completionHandler = std::move(completionHandler)] {
        completionHandler(response, std::nullopt);
    });
}

} // namespace gtk
