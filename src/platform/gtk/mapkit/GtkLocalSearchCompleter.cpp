#include "platform/gtk/mapkit/GtkLocalSearchCompleter.h"

#include "platform/foundation/Unicode.h"
#include "platform/mapkit/MKLocalSearchCompleterDelegate.h"

namespace gtk {

namespace {
constexpr int mostResults = 10;
}

GtkLocalSearchCompleter::GtkLocalSearchCompleter(
    std::shared_ptr<GeocodingService> service, double pause)
    : service_(std::move(service))
    , pause_(pause)
{
}

void GtkLocalSearchCompleter::setDelegate(platform::MKLocalSearchCompleterDelegate* delegate)
{
    delegate_ = delegate;
}

void GtkLocalSearchCompleter::setQueryFragment(std::string fragment)
{
    queryFragment_ = std::move(fragment);
    question_.reset();
    const auto text = platform::trimmingWhitespace(queryFragment_);
    if (text.empty())
        timer_.start(0, [this] { publish({}); });
    else
        timer_.start(pause_, [this, text] { ask(text); });
}

void GtkLocalSearchCompleter::ask(const std::string& text)
{
    question_ =
        service_->search(text, mostResults, [this](const auto& answer) { receive(answer); });
}

void GtkLocalSearchCompleter::receive(const GeocodingService::Answer& answer)
{
    if (const auto* error = std::get_if<platform::NSError>(&answer))
        return fail(*error);
    const auto places = GeocodedPlace::fromAnswer(std::get<std::string>(answer));
    if (!places)
        return fail({"The address search answered something that cannot be read."});

    platform::MKLocalSearchCompletions results;
    for (const auto& place : *places) {
        if (resultTypes_ & (place.isAddress ? address : pointOfInterest))
            results.push_back(std::make_shared<const GtkLocalSearchCompletion>(place));
    }
    publish(std::move(results));
}

void GtkLocalSearchCompleter::publish(platform::MKLocalSearchCompletions results)
{
    results_ = std::move(results);
    if (delegate_)
        delegate_->completerDidUpdateResults(*this);
}

void GtkLocalSearchCompleter::fail(const platform::NSError& error)
{
    results_.clear();
    if (delegate_)
        delegate_->completerDidFailWithError(*this, error);
}

} // namespace gtk
