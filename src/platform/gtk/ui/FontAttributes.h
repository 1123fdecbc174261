#pragma once

#include "platform/ui/Font.h"

#include <pangomm/attrlist.h>

namespace gtk {

// The desktop's font in that size and weight.
Pango::AttrList fontAttributes(const ui::Font& font);

} // namespace gtk
