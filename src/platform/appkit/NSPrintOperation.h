#pragma once

#include "platform/appkit/NSPrintInfo.h"

#include <functional>
#include <memory>
#include <string>

namespace platform {

class NSWindow;

// One print of what a view shows. The user chooses printer and paper in the platform's print panel,
// and sees the progress where the desktop has a panel for that. The view keeps the operation until
// it has ended; when the view goes away first, the panel goes too and no completion is called.
//
// Main thread only.
class NSPrintOperation {
public:
    // Whether the pages went to a printer. Cancelling and failing are the same here.
    using Completion = std::function<void(NSPrintOperation&, bool success)>;

    explicit NSPrintOperation(const NSPrintInfo& printInfo)
        : printInfo(printInfo)
    {
    }
    virtual ~NSPrintOperation() = default;

    NSPrintOperation(const NSPrintOperation&) = delete;
    NSPrintOperation& operator=(const NSPrintOperation&) = delete;

    const NSPrintInfo printInfo;

    // What print queues show, and what a file that is printed to is called at first.
    std::string jobTitle;

    // Shows the panel over `window`, which takes no input meanwhile, and calls `completion` once
    // when all is done: also when the window goes away. The call itself returns at once.
    virtual void runModalFor(const std::shared_ptr<NSWindow>& window, Completion completion) = 0;

    // The same with a panel of its own.
    virtual void runOperation(Completion completion) = 0;
};

} // namespace platform
