#include "UserInput.h"

#include "Process.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

void run(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    Process tool(arguments);
    EXPECT_EQ(tool.waitForExit(), 0) << tool.errors();
}

} // namespace

void UserInput::press(const std::string& key)
{
    run({"key", "--clearmodifiers", key});
}

void UserInput::press(const std::string& key, int times)
{
    run({"key", "--clearmodifiers", "--delay", "0", "--repeat", std::to_string(times), key});
}

void UserInput::type(const std::string& text)
{
    run({"type", "--delay", "1", text});
}

void UserInput::movePointer(int x, int y)
{
    run({"mousemove", std::to_string(x), std::to_string(y)});
}

void UserInput::click(int button)
{
    run({"click", std::to_string(button)});
}

void UserInput::click(int x, int y, int button)
{
    run({"mousemove", std::to_string(x), std::to_string(y), "click", std::to_string(button)});
}

void UserInput::holdButton()
{
    run({"mousedown", "1"});
}

void UserInput::releaseButton()
{
    run({"mouseup", "1"});
}

void UserInput::slide(Point from, Point to)
{
    constexpr int steps = 20;
    for (int step = 1; step <= steps; ++step) {
        run({"mousemove", std::to_string(from.x + (to.x - from.x) * step / steps),
            std::to_string(from.y + (to.y - from.y) * step / steps), "sleep", "0.02"});
    }
}

void UserInput::drag(Point from, Point to)
{
    movePointer(from.x, from.y);
    holdButton();
    slide(from, to);
    releaseButton();
}

} // namespace desktop
