#pragma once

#include "Desktop.h"

#include <memory>

// Of GLib, whose headers not every user of this one has.
using GVariant = struct _GVariant; // NOLINT(bugprone-reserved-identifier)

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

    // In pixels of the window that it is in.
    Rectangle bounds() const;
    // Does what a click does. False when the object cannot be clicked.
    bool activate() const;

private:
    using Answer = std::shared_ptr<GVariant>;

    AccessibleObject(std::string program, std::string path)
        : program_(std::move(program))
        , path_(std::move(path))
    {
    }

    static std::vector<AccessibleObject> applications(int pid);
    // Null when the object has gone or has no such method.
    Answer ask(const char* interface, const char* method, GVariant* arguments = nullptr) const;
    std::string name() const;
    bool isVisible() const;
    std::vector<AccessibleObject> children() const;
    int count(const std::string& role) const;

    std::string program_; // its name on the accessibility bus
    std::string path_;
};

} // namespace desktop
