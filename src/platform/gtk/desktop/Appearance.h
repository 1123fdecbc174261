#pragma once

#include "platform/gtk/foundation/BusConversation.h"
#include "platform/gtk/foundation/GtkUserDefaults.h"

#include <filesystem>
#include <gtkmm/cssprovider.h>

namespace gtk {

// Follows what the user has told the desktop about looks: light or dark, more contrast, a colour of
// accents. GTK follows the settings of its own; desktops that tell more do so over the settings
// portal. The answer comes after the first frame, so the last one is remembered and used for that.
class Appearance {
public:
    // Where the last answer is remembered.
    Appearance(std::filesystem::path memory, platform::DispatchQueue& queue);
    ~Appearance();

    Appearance(const Appearance&) = delete;
    Appearance& operator=(const Appearance&) = delete;

    // To be called once there is a display, before the first window is made.
    void follow();

private:
    void applyRemembered();
    void listen();
    void changed(const std::string& key, const Glib::VariantBase& value);
    void setDark(bool isDark);
    void setHighContrast(bool isHigh);
    void setAccent(GVariant* color);

    GtkUserDefaults memory_;
    // What has been applied. To reset a setting that nobody has changed makes GTK read the whole
    // theme once more.
    bool isDark_ = false;
    bool isHighContrast_ = false;
    BusConversation portal_;
    Glib::RefPtr<Gtk::CssProvider> accent_; // null while the theme's is used
};

} // namespace gtk
