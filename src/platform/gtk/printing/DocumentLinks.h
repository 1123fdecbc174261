#pragma once

#include "platform/appkit/Geometry.h"
#include "platform/foundation/Data.h"

#include <optional>
#include <string>
#include <vector>

namespace gtk {

// A place in a document that leads somewhere when it is clicked. Points, from the upper left corner
// of the sheet.
struct DocumentLink {
    platform::NSRect area;
    std::string address; // empty: to `target`
    std::optional<double> target; // distance from the sheet's upper edge
};

// A PDF document of a single sheet with these links in it; the engine only draws them. A document
// that cannot be read, or has more than one sheet, stays as it is.
platform::Data withLinks(platform::Data document, const std::vector<DocumentLink>& links);

} // namespace gtk
