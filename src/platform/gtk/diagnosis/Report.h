#pragma once

#include "platform/gtk/renderer/RendererChoice.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace gtk {

class HostTrust;

enum class Verdict {
    ok,
    warning, // something is missing that the program can do without
    problem, // the program cannot do what it is there for
};

// What a check of the machine has brought to light, for a person to read.
struct Finding {
    std::string title; // what was looked at, in a word or two
    std::string finding; // what is there, in a few words
    Verdict verdict = Verdict::ok;
    std::string advice = {}; // what to do about it; empty when there is nothing to do
};

// A page of text: a line for each finding, its advice below it, and the number of problems and
// warnings at the end. Where `home` begins a path it becomes "~", which tells nobody's name.
std::string report(const std::vector<Finding>& findings, const std::string& home);

bool hasProblem(const std::vector<Finding>& findings);

// Something to look at on the machine. It is done in a process of its own (`CheckProcess`), so it
// may block, and what it calls may even crash, as graphics drivers do.
struct Check {
    std::string title;
    double patience = 5; // seconds
    std::function<std::vector<Finding>()> look;
    std::string adviceWhenStuck = {}; // for one that crashes or takes longer
};

// What support wants to know, one function for each thing that can be looked at by itself.

// Which versions of the program, the system and the libraries there are.
std::vector<Finding> checkVersions();

// Whether web pages can be confined.
std::vector<Finding> checkSandbox();

// Whether there is a display, and how large its monitors are.
std::vector<Finding> checkDisplay();

// What draws windows and pages, and which driver the graphics processor has.
std::vector<Finding> checkRenderer(RendererChoice choice);

// Whether the services of the desktop answer on its message buses.
std::vector<Finding> checkPortal();
std::vector<Finding> checkNotifications();
std::vector<Finding> checkLocation();

// How many printers there are, and whether PDF files can be written.
std::vector<Finding> checkPrinters();

// Whether files can be saved in `folder`, and how much space is left.
std::vector<Finding> checkDownloads(const std::filesystem::path& folder);

// Whether the service at `origin` answers, and what its certificate says. The request
// carries nothing that identifies the user.
std::vector<Finding> checkService(
    const std::string& origin, const std::shared_ptr<const HostTrust>& trust);

} // namespace gtk
