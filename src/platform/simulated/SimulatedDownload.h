#pragma once

#include "platform/webkit/WKDownload.h"

namespace simulated {

// A download without a network: the test says how it goes on.
class SimulatedDownload final : public platform::WKDownload,
                                public std::enable_shared_from_this<SimulatedDownload> {
public:
    void cancel() override { simulateFailure("cancelled"); }

    // The answer has begun, or the name chosen before has been taken since.
    void simulateAnswer(const std::string& suggestedFilename)
    {
        delegate.lock()->decideDestination(shared_from_this(), suggestedFilename,
            [this](const auto& decided) { destination = decided; });
    }

    void simulateEnd() { delegate.lock()->downloadDidFinish(shared_from_this()); }
    void simulateFailure(const std::string& reason)
    {
        delegate.lock()->downloadDidFail(shared_from_this(), {reason});
    }

    std::optional<platform::URL> destination; // as decided last
};

} // namespace simulated
