#pragma once

#include <string>

namespace platform {

// A script that runs in every page by itself. It is a plain value.
struct WKUserScript {
    enum class InjectionTime { atDocumentStart, atDocumentEnd };

    std::string source;
    InjectionTime injectionTime = InjectionTime::atDocumentEnd;
    bool forMainFrameOnly = true;
};

} // namespace platform
