#pragma once

#include "platform/foundation/DispatchQueue.h"

#include <memory>

namespace gtk {

// The main queue on top of the main loop: each task is one event among the loop's others, at the
// priority of input and ahead of painting. Tasks go on running while a modal loop is open inside
// one of them. No task runs once the queue is gone.
class MainLoopQueue final : public platform::DispatchQueue {
public:
    void async(Task task) override;
    void asyncAfter(double seconds, Task task) override;

private:
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
