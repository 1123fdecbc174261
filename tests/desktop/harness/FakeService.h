#pragma once

#include <functional>
#include <gio/gio.h>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace desktop {

// A service of the desktop on one of the private buses, for as long as it lives. It runs in a
// thread of its own, so that it answers whatever the test is busy with.
class FakeService {
public:
    virtual ~FakeService();

    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    // What it was asked for, oldest first, each with the arguments that matter.
    std::vector<std::string> calls() const;

protected:
    // Names the bus by the variable of the environment that holds its address.
    FakeService(const char* busVariable, std::string name);

    // Connects and takes the name. To be called at the end of the constructor. Throws
    // std::runtime_error when there is no such bus or the name is taken.
    void start();

    // To be called at the beginning of the destructor. No method below runs after it.
    void stop();

    // All that follows is called in the thread.

    virtual void registerObjects() = 0;
    virtual void handle(const std::string& method, GVariant* arguments, GDBusMethodInvocation*) = 0;
    virtual GVariant* property(const std::string& path, const std::string& name);

    void registerObject(const std::string& path, const char* introspection);
    void emit(const std::string& path, const std::string& interface, const std::string& signal,
        GVariant* values);
    void note(const std::string& call);

    // Runs `task` in the thread.
    void invoke(std::function<void()> task);

private:
    void run();

    const std::string busVariable_;
    const std::string name_;
    GMainContext* context_;
    GMainLoop* loop_;
    GDBusConnection* connection_ = nullptr;
    std::thread thread_;
    std::string failure_; // why it could not start
    mutable std::mutex mutex_; // guards the calls
    std::vector<std::string> calls_;
};

} // namespace desktop
