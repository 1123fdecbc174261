#pragma once

#include "FakeService.h"

namespace desktop {

// The portal that tells sandboxed programs where they are, on the private session bus.
class FakeLocationPortal final : public FakeService {
public:
    enum class Manner {
        grants, // and tells one place: 12.5 north, 3.25 west, to 20 metres
        refuses, // the user says no
        endsTheSession, // after it has granted one
        neverDecides,
    };

    explicit FakeLocationPortal(Manner manner);
    ~FakeLocationPortal() override { stop(); }

private:
    void registerObjects() override;
    void handle(
        const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation) override;
    void answer(GDBusMethodInvocation* invocation, GVariant* arguments);

    const Manner manner_;
};

} // namespace desktop
