#pragma once

#include "FakeService.h"

#include <map>

namespace desktop {

// The portal through which a desktop tells programs how they are to look, on the private session
// bus.
class FakeSettingsPortal final : public FakeService {
public:
    // Numbers of the namespace "org.freedesktop.appearance".
    explicit FakeSettingsPortal(std::map<std::string, unsigned> appearance);
    ~FakeSettingsPortal() override { stop(); }

    // The user changes their mind.
    void change(const std::string& key, unsigned value);

private:
    void registerObjects() override;
    void handle(
        const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation) override;

    std::map<std::string, unsigned> appearance_;
};

} // namespace desktop
