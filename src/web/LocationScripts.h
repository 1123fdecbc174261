#pragma once

#include "location/PickedLocation.h"
#include "location/StationKind.h"

#include <string>

namespace velmaro {

// The one-shot scripts that tell a page about places.
namespace LocationScripts {

// Leaves the place in the page's `__vlOverrideLocation`, then shows the kind's page as
// `PageScripts::showRoute` does. The label arrives unchanged, whatever is in it but line breaks,
// and the coordinates as the very same numbers.
std::string handOffLocation(StationKind kind, const PickedLocation& location);

} // namespace LocationScripts

} // namespace velmaro
