#pragma once

#include "platform/foundation/URL.h"

#include <string>

namespace velmaro {

// Tells the user where a report is now, and offers to share or to show the file.
void showReportSavedAlert(const platform::URL& file);

// Tells the user why there is no report.
void showReportErrorAlert(const std::string& text);

} // namespace velmaro
