#pragma once

#include "platform/foundation/URL.h"

#include <chrono>
#include <string>

namespace velmaro {

// `name` with a hyphen in the place of each character that some file system does not take, and
// without blanks and line breaks at its ends. A name of which nothing is left becomes "Velmaro
// Report".
std::string cleanReportName(const std::string& name);

// Where a report of this name is to be saved at this time: in the user's folder for downloads, or
// the temporary one where the desktop has no such folder. A name that is taken gets the time added;
// a file that bears even that name is to be replaced.
platform::URL reportFileURL(const std::string& name, std::chrono::system_clock::time_point now);

} // namespace velmaro
