#pragma once

#include <functional>
#include <gio/gio.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

// A service of the desktop on one of the private buses, for as long as it lives: a table of its
// methods. It answers in a thread of its own, whatever the test is busy with.
class FakeService {
public:
    // What some program asks for. It waits in vain when a method neither answers nor refuses.
    struct Call {
        std::string sender; // its name on the bus
        std::string path;
        std::string method;
        std::shared_ptr<GVariant> arguments; // a tuple; null where there are no arguments
        std::shared_ptr<GDBusMessage> message;
        GDBusConnection* bus; // belongs to the service

        // Takes a floating tuple; null for an answer without values.
        void answer(GVariant* values = nullptr) const;
        void refuse(const char* error, const char* reason) const;
        // The method with its arguments, as GVariant prints them.
        std::string text() const;
    };
    using Methods = std::map<std::string, std::function<void(const Call&)>>;

    // Throws std::runtime_error when there is no such bus or the name is taken. Methods with the
    // same name are one, whatever their interface; each runs in the thread.
    FakeService(GBusType bus, const char* name, Methods methods);
    // No method runs after it.
    ~FakeService();

    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    // A method that always answers with these values: a tuple as GVariant prints it.
    static std::function<void(const Call&)> answering(const std::string& values = "()");

    // The calls of its methods, oldest first.
    std::vector<Call> calls() const;
    // Whether there come to be so many calls with `part` in their text.
    [[nodiscard]] bool isCalled(const std::string& part, int times = 1) const;

    // Takes floating `values`, a tuple.
    void emit(const std::string& path, const char* interface, const char* signal, GVariant* values);

private:
    struct State;

    GDBusConnection* connection_;
    std::shared_ptr<State> state_; // the thread's too
};

} // namespace desktop
