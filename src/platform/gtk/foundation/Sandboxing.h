#pragma once

namespace gtk {

// Whether this program runs in a sandbox that has portals: an installed Flatpak.
bool isSandboxed();

} // namespace gtk
