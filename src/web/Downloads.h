#pragma once

#include "platform/foundation/URL.h"

#include <string>

namespace velmaro {

// Where a file called `name` can be saved in `folder`: under that name, or under the first of
// "name (2)", "name (3)"… that nothing bears yet. The number stands before the extension.
platform::URL uniqueDestination(const platform::URL& folder, const std::string& name);

// Whether the file's name is that of an export of the service.
bool isExportFile(const platform::URL& file);

// Tells the user that `file` was saved, and shows it in the file manager when they want to.
void showExportSavedAlert(const platform::URL& file);

} // namespace velmaro
