#pragma once

#include <webkit/webkit.h>

namespace gtk {

// How every page is treated that asks for something beside its own area: no dialog, no window, no
// device, no print, no holding back a user who leaves.
void teachManners(WebKitWebView* view);

} // namespace gtk
