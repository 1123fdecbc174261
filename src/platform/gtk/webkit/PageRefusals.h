#pragma once

#include <webkit/webkit.h>

namespace gtk {

// How every page is treated that asks for something it does not get: no dialog, no device, no
// print, no holding back a user who leaves.
void refusePageRequests(WebKitWebView* view);

} // namespace gtk
