#pragma once

namespace velmaro {

class TabbedAppModel;
class WebModel;

// What the main window publishes for the menus: its tabs, and the active one of them.

struct TabbedAppModelFocusedKey {
    using Value = TabbedAppModel;
};

struct WebModelFocusedKey {
    using Value = WebModel;
};

} // namespace velmaro
