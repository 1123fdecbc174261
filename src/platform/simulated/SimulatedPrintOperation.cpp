#include "platform/simulated/SimulatedPrintOperation.h"

#include "platform/simulated/Failure.h"

#include <utility>

namespace simulated {

void SimulatedPrintOperation::runModalFor(
    const std::shared_ptr<platform::NSWindow>& sheetWindow, Completion completion)
{
    if (!sheetWindow)
        fail("a print panel is to be shown over no window");
    window = sheetWindow;
    runOperation(std::move(completion));
}

void SimulatedPrintOperation::runOperation(Completion completion)
{
    if (isRunning())
        fail("the print runs already");
    completion_ = std::move(completion);
}

void SimulatedPrintOperation::simulateEnd(bool success)
{
    if (!isRunning())
        return fail("no print panel is shown");
    std::exchange(completion_, nullptr)(*this, success);
}

} // namespace simulated
