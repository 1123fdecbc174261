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

} // namespace desktop
