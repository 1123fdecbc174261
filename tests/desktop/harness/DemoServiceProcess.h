#pragma once

#include "Process.h"

#include <memory>
#include <nlohmann/json.hpp>

namespace desktop {

// A demo service for one test, with its certificate in the private home.
class DemoServiceProcess {
public:
    struct Options {
        bool isHostile = false;
        int port = 0; // 0 for any free one
    };

    DemoServiceProcess()
        : DemoServiceProcess(Options{})
    {
    }
    explicit DemoServiceProcess(Options options);

    // What the application needs in its environment to reach the service.
    Process::Environment clientEnvironment() const;

    const std::string& origin() const { return origin_; }
    int port() const;

    // An answered request, as the service has logged it.
    struct Request {
        std::string method;
        std::string path;
        std::string query; // as sent, without the question mark
        std::map<std::string, std::string> headers; // some of them, by their lower-case names
        int status = 0;
    };

    // All requests since the start or since the last `forgetRequests`, oldest first.
    std::vector<Request> requests() const;

    // Those of them that asked for `path`.
    std::vector<Request> requests(const std::string& path) const;

    // Whether `path` comes to be asked for so many times or more.
    [[nodiscard]] bool isAsked(const std::string& path, std::size_t times = 1) const;

    // Also takes the service's data back to what it was at the start.
    void forgetRequests();

    // Ends the service. Its port then refuses connections.
    void stop() { process_.reset(); }

private:
    std::unique_ptr<Process> process_;
    std::string origin_;
    std::string certificate_;
};

} // namespace desktop
