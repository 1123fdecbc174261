#pragma once

#include "platform/appkit/NSPrintOperation.h"

namespace simulated {

// A print whose user is the test: the panel stays until the test answers it.
class SimulatedPrintOperation final : public platform::NSPrintOperation {
public:
    using NSPrintOperation::NSPrintOperation;

    void runModalFor(
        const std::shared_ptr<platform::NSWindow>& window, Completion completion) override;
    void runOperation(Completion completion) override;

    // The user prints, or cancels; fails the test when no panel is shown.
    void simulateEnd(bool success);

    bool isRunning() const { return static_cast<bool>(completion_); }

    std::weak_ptr<platform::NSWindow> window; // that the panel is shown over, if any

private:
    Completion completion_;
};

} // namespace simulated
