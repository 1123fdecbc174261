#pragma once

#include "platform/gtk/diagnosis/Checks.h"

namespace gtk {

// The answer to `--diagnose`.
namespace Diagnosis {

struct Options {
    std::string serviceOrigin;
    std::shared_ptr<const HostTrust> trust;
    std::filesystem::path downloads;
    RendererChoice renderer = RendererChoice::hardware;
};

// Looks at everything at the same time and prints what it has found, within 6 seconds. Returns the
// program's exit status: 1 where there is a problem. To be called while there is one thread.
int run(const Options& options);

} // namespace Diagnosis

} // namespace gtk
