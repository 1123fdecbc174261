#pragma once

#include "harness/DemoServiceProcess.h"

#include <functional>
#include <memory>
#include <string>

// One way to bring the page on screen.
struct Contender {
    std::string name;

    // Puts the process's surroundings in order; not measured.
    std::function<void()> prepare;

    std::function<std::unique_ptr<desktop::Process>()> start;
};

// The application with so many saved tabs, the middle one active, all on the page that is measured.
Contender applicationWithTabs(const desktop::DemoServiceProcess& service, int count);

// A window with nothing but the engine's view.
Contender bareWindow(const desktop::DemoServiceProcess& service);

// Chromium with a window for the page alone.
Contender browserApplicationMode(const desktop::DemoServiceProcess& service);
