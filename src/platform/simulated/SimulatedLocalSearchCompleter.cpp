#include "platform/simulated/SimulatedLocalSearchCompleter.h"

#include "platform/mapkit/MKLocalSearchCompleterDelegate.h"
#include "platform/simulated/Failure.h"

namespace simulated {

void SimulatedLocalSearchCompleter::setDelegate(platform::MKLocalSearchCompleterDelegate* delegate)
{
    delegate_ = delegate;
}

void SimulatedLocalSearchCompleter::setQueryFragment(std::string fragment)
{
    queryFragments.push_back(std::move(fragment));
}

void SimulatedLocalSearchCompleter::simulateResults(const std::vector<TitleAndSubtitle>& places)
{
    results_.clear();
    for (const auto& [title, subtitle] : places) {
        results_.push_back(
            std::make_shared<const platform::MKLocalSearchCompletion>(title, subtitle));
    }
    if (hasDelegate())
        delegate_->completerDidUpdateResults(*this);
}

void SimulatedLocalSearchCompleter::simulateFailure(const platform::NSError& error)
{
    results_.clear();
    if (hasDelegate())
        delegate_->completerDidFailWithError(*this, error);
}

bool SimulatedLocalSearchCompleter::hasDelegate() const
{
    if (!delegate_)
        fail("nobody listens to the search completer");
    return delegate_;
}

} // namespace simulated
