#include "platform/gtk/launch/RequestQueue.h"

#include "harness/MainLoop.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"

#include <gtest/gtest.h>

namespace gtk {

using desktop::runWaitingEvents;

class RequestQueueTest : public testing::Test {
protected:
    void enqueue(const std::string& request)
    {
        queue.enqueue([this, request] { performed.push_back(request); });
    }

    GtkDispatchQueue mainQueue;
    bool isReady = false;
    std::vector<std::string> performed;
    RequestQueue queue{mainQueue, [this] { return isReady; }};
};

TEST_F(RequestQueueTest, requestsWaitInOrderUntilTheyCanBePerformed)
{
    enqueue("drive 42");
    enqueue("dashboard");
    isReady = true;
    queue.update();
    isReady = false; // the page has gone again, just in time
    runWaitingEvents();
    EXPECT_TRUE(performed.empty());

    isReady = true;
    queue.update();
    queue.update();
    runWaitingEvents();
    EXPECT_EQ(performed, (std::vector<std::string>{"drive 42", "dashboard"}));
}

} // namespace gtk
