#pragma once

#include "Rectangle.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

// A control of some program as a screen reader meets it. It stays harmless when the control goes
// away.
class AccessibleObject {
public:
    // The object with this name in the application whose process is `pid`, the one nearest to its
    // windows: what a person would call the control. Absent while there is none on screen.
    static std::optional<AccessibleObject> find(int pid, const std::string& name);

    // How many objects on screen have this role, such as "tab".
    static int count(int pid, const std::string& role);

    std::string role() const;

    // In pixels of the window that it is in.
    Rectangle bounds() const;

    // Does what a click does. False when the object cannot be clicked.
    bool activate() const;

private:
    struct Address {
        std::string program; // its name on the accessibility bus
        std::string path;
    };

    explicit AccessibleObject(Address address)
        : address_(std::move(address))
    {
    }

    std::string name() const;
    bool isVisible() const;
    std::vector<AccessibleObject> children() const;
    int count(const std::string& role) const;

    static std::vector<AccessibleObject> applications(int pid);

    Address address_;
};

} // namespace desktop
