#include "platform/gtk/appkit/OpenURLQueue.h"

#include "harness/MainLoop.h"
#include "platform/gtk/foundation/MainLoopQueue.h"

#include <gtest/gtest.h>

namespace gtk {

using desktop::runWaitingEvents;

class OpenURLQueueTest : public testing::Test {
protected:
    MainLoopQueue mainQueue;
    bool isReady = false;
    std::vector<std::string> delivered;
    OpenURLQueue queue{mainQueue, [this] { return isReady; },
        [this](const platform::URL& url) { delivered.push_back(url.absoluteString()); }};
};

TEST_F(OpenURLQueueTest, addressesWaitInOrderUntilSomebodyCanTakeThem)
{
    queue.enqueue("velmaro://drive/42");
    queue.enqueue("VELMARO://Dashboard");
    runWaitingEvents();
    EXPECT_TRUE(delivered.empty());

    isReady = true;
    queue.update();
    queue.update();
    runWaitingEvents();
    EXPECT_EQ(delivered, (std::vector<std::string>{"velmaro://drive/42", "VELMARO://Dashboard"}));
}

TEST_F(OpenURLQueueTest, whatIsNoAddressIsDropped)
{
    isReady = true;
    for (const auto* text : {"velmaro://page/a b", "velmaro://page/%zz", "velmaro://page/ü"})
        queue.enqueue(text);
    queue.enqueue("velmaro://page/%20");
    runWaitingEvents();
    EXPECT_EQ(delivered, (std::vector<std::string>{"velmaro://page/%20"}));
}

TEST_F(OpenURLQueueTest, addressesWaitAgainWhenThePageHasGone)
{
    isReady = true;
    queue.enqueue("velmaro://fuel");
    isReady = false;
    runWaitingEvents();
    EXPECT_TRUE(delivered.empty());

    isReady = true;
    queue.update();
    runWaitingEvents();
    EXPECT_EQ(delivered, (std::vector<std::string>{"velmaro://fuel"}));
}

} // namespace gtk
