#pragma once

#include "DemoServiceProcess.h"

namespace desktop {

// Lets the session bus start the application, as it does an installed one, with the demo service
// for its service. To be called before the application is asked for anything.
void installProgram(const DemoServiceProcess& service);

} // namespace desktop
