#pragma once

#include <functional>
#include <string>
#include <vector>

namespace platform {

// A message that the user has to answer before anything else in the application. It is a plain
// value: `runModal` keeps a copy.
struct NSAlert {
    enum class Style { warning, informational, critical };

    // Numbers of buttons, as `runModal` answers them.
    static constexpr int firstButton = 0;
    static constexpr int secondButton = 1;
    static constexpr int thirdButton = 2;

    std::string messageText;
    std::string informativeText; // may be empty
    Style alertStyle = Style::warning;

    // Titles in order. The first is the default, which Return presses; one titled "Cancel", or else
    // the last, is pressed by Escape and by closing the alert. Empty: one button "OK".
    std::vector<std::string> buttons;

    // Shows the alert over all windows of the application, which take no input until it is
    // answered, and then calls `completion` with the number of the button. Alerts asked for
    // meanwhile wait for their turn. The call itself returns at once, and everything but input goes
    // on. When the program ends first, there is no answer. Main thread only.
    void runModal(std::function<void(int button)> completion) const;

    bool operator==(const NSAlert&) const = default;
};

} // namespace platform
