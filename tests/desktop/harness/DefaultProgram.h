#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace desktop {

// The program that the user of the private desktop has chosen for web addresses, mail, calls and
// messages. It notes what it is handed and does nothing else. To be made before whatever opens
// addresses is started.
class DefaultProgram {
public:
    struct Start {
        std::string address;
        std::string activationToken; // with which it may come forward; empty where it got none
    };

    DefaultProgram();

    // Its starts so far, oldest first.
    std::vector<Start> starts() const;

    // The addresses of these starts.
    std::vector<std::string> addresses() const;

private:
    std::filesystem::path notes_;
};

} // namespace desktop
