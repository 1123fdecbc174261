#pragma once

#include "platform/gtk/diagnosis/Report.h"

namespace gtk {

// What the option `--diagnose` does.
namespace Diagnosis {

struct Options {
    std::string serviceOrigin;
    std::shared_ptr<const HostTrust> trust;
    std::filesystem::path downloads;
    RendererChoice renderer = RendererChoice::hardware;
};

// Runs all checks at the same time and prints what they have found, within 6 seconds. Returns the
// program's exit status, which is 1 when there is a problem. To be called while the program has
// only one thread.
int run(const Options& options);

} // namespace Diagnosis

} // namespace gtk
