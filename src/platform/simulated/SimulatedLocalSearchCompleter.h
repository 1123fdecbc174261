#pragma once

#include "platform/foundation/NSError.h"
#include "platform/mapkit/MKLocalSearchCompleter.h"

#include <string>
#include <utility>
#include <vector>

namespace simulated {

// A completer that records what is typed and suggests what the test tells it to.
class SimulatedLocalSearchCompleter final : public platform::MKLocalSearchCompleter {
public:
    using TitleAndSubtitle = std::pair<std::string, std::string>;

    void setDelegate(platform::MKLocalSearchCompleterDelegate* delegate) override;
    std::uint32_t resultTypes() const override { return resultTypes_; }
    void setResultTypes(std::uint32_t types) override { resultTypes_ = types; }
    const std::string& queryFragment() const override { return queryFragments.back(); }
    void setQueryFragment(std::string fragment) override;
    const platform::MKLocalSearchCompletions& results() const override { return results_; }

    // The service answers, also when nothing was typed. Fails the test when there is no delegate.
    void simulateResults(const std::vector<TitleAndSubtitle>& places);
    void simulateFailure(const platform::NSError& error);

    std::vector<std::string> queryFragments = {""}; // all that there were, the present one last

private:
    bool hasDelegate() const;

    platform::MKLocalSearchCompleterDelegate* delegate_ = nullptr;
    std::uint32_t resultTypes_ = address | pointOfInterest;
    platform::MKLocalSearchCompletions results_;
};

} // namespace simulated
