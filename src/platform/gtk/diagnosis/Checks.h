#pragma once

#include "platform/gtk/diagnosis/Check.h"
#include "platform/gtk/renderer/RendererChoice.h"

#include <filesystem>
#include <memory>

namespace gtk {

class HostTrust;

// What support wants to know, one function for each thing that can be looked at by itself. They
// block; each belongs into a process of its own (CheckProcess).

// Of the program, the system and the libraries.
std::vector<Finding> checkVersions();

// Whether pages can be shut in.
std::vector<Finding> checkSandbox();

std::vector<Finding> checkDisplay();

// What draws windows and pages, and which driver the graphics processor has.
std::vector<Finding> checkRenderer(RendererChoice choice);

// Services of the desktop, on its message buses.
std::vector<Finding> checkPortal();
std::vector<Finding> checkNotifications();
std::vector<Finding> checkLocation();

std::vector<Finding> checkPrinters();

// Whether files can be saved in `folder`, and how much more of them.
std::vector<Finding> checkDownloads(const std::filesystem::path& folder);

// Whether the service at `origin` answers, and what its certificate says. Nothing is sent that
// tells who asks.
std::vector<Finding> checkService(
    const std::string& origin, const std::shared_ptr<const HostTrust>& trust);

} // namespace gtk
