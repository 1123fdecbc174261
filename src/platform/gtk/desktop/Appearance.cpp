#include "platform/gtk/desktop/Appearance.h"

#include "platform/Platform.h"

#include <cstdio>
#include <gtkmm/settings.h>
#include <gtkmm/stylecontext.h>
#include <utility>

namespace gtk {

namespace {

constexpr double patience = 5; // seconds
constexpr auto settingsInterface = "org.freedesktop.portal.Settings";
constexpr auto desktopPath = "/org/freedesktop/portal/desktop";
constexpr auto appearanceNamespace = "org.freedesktop.appearance";

constexpr auto darkKey = "dark";
constexpr auto highContrastKey = "highContrast";

constexpr guint32 prefersDark = 1;
constexpr guint32 prefersHighContrast = 1;

GtkSettings* settings()
{
    return gtk_settings_get_default();
}

bool isNumber(const Glib::VariantBase& value, guint32 number)
{
    auto* variant = const_cast<GVariant*>(value.gobj());
    return g_variant_is_of_type(variant, G_VARIANT_TYPE_UINT32)
        && g_variant_get_uint32(variant) == number;
}

bool isColor(const double (&parts)[3])
{
    for (const double part : parts) {
        if (!(part >= 0 && part <= 1)) // others mean that the user has chosen none
            return false;
    }
    return true;
}

} // namespace

Appearance::Appearance(std::filesystem::path memory, platform::DispatchQueue& queue)
    : memory_(std::move(memory), queue, platform::NSLog)
    , portal_(Gio::DBus::BusType::SESSION, "org.freedesktop.portal.Desktop")
{
}

Appearance::~Appearance() = default;

void Appearance::follow()
{
    applyRemembered();
    // Most desktops have no such portal, or none that tells of looks; then GTK's settings hold.
    portal_.open([this] { listen(); });
}

void Appearance::applyRemembered()
{
    setDark(memory_.boolean(darkKey));
    setHighContrast(memory_.boolean(highContrastKey));
}

void Appearance::listen()
{
    portal_.listen({desktopPath, settingsInterface, "SettingChanged"}, "(ssv)",
        [this](const BusValues& values) {
            const char* area = nullptr;
            const char* key = nullptr;
            g_autoptr(GVariant) value = nullptr;
            g_variant_get(const_cast<GVariant*>(values.gobj()), "(&s&sv)", &area, &key, &value);
            if (std::string(area) == appearanceNamespace)
                changed(key, Glib::VariantBase(value, true));
        });

    portal_.call(
        {
            .method = {desktopPath, settingsInterface, "ReadAll"},
            .arguments = busValues(std::vector<Glib::ustring>{appearanceNamespace}),
            .resultType = "(a{sa{sv}})",
            .patience = patience,
        },
        [this](const BusValues& answer) {
            g_autoptr(GVariantIter) areas = nullptr;
            g_variant_get(const_cast<GVariant*>(answer.gobj()), "(a{sa{sv}})", &areas);
            GVariantIter* members = nullptr;
            while (g_variant_iter_loop(areas, "{sa{sv}}", nullptr, &members)) {
                const char* key = nullptr;
                GVariant* value = nullptr;
                while (g_variant_iter_loop(members, "{&sv}", &key, &value))
                    changed(key, Glib::VariantBase(value, true));
            }
        });
}

void Appearance::changed(const std::string& key, const Glib::VariantBase& value)
{
    if (key == "color-scheme") {
        setDark(isNumber(value, prefersDark));
        memory_.setBoolean(darkKey, isNumber(value, prefersDark));
    } else if (key == "contrast") {
        setHighContrast(isNumber(value, prefersHighContrast));
        memory_.setBoolean(highContrastKey, isNumber(value, prefersHighContrast));
    } else if (key == "accent-color") {
        setAccent(const_cast<GVariant*>(value.gobj()));
    }
}

// Where the desktop asks for nothing, GTK's own settings hold again.
void Appearance::setDark(bool isDark)
{
    constexpr auto property = "gtk-application-prefer-dark-theme";
    if (std::exchange(isDark_, isDark) == isDark)
        return;
    if (isDark)
        g_object_set(settings(), property, TRUE, nullptr);
    else
        gtk_settings_reset_property(settings(), property);
}

void Appearance::setHighContrast(bool isHigh)
{
    constexpr auto property = "gtk-theme-name";
    if (std::exchange(isHighContrast_, isHigh) == isHigh)
        return;
    if (isHigh)
        g_object_set(settings(), property, "HighContrast", nullptr);
    else
        gtk_settings_reset_property(settings(), property);
}

void Appearance::setAccent(GVariant* color)
{
    const auto display = Gdk::Display::get_default();
    if (accent_)
        Gtk::StyleContext::remove_provider_for_display(display, accent_);
    accent_.reset();

    double parts[3];
    if (!g_variant_is_of_type(color, G_VARIANT_TYPE("(ddd)")))
        return;
    g_variant_get(color, "(ddd)", &parts[0], &parts[1], &parts[2]);
    if (!isColor(parts))
        return;

    char style[128];
    std::snprintf(style, sizeof style, "@define-color theme_selected_bg_color rgb(%d,%d,%d);",
        static_cast<int>(parts[0] * 255), static_cast<int>(parts[1] * 255),
        static_cast<int>(parts[2] * 255));
    accent_ = Gtk::CssProvider::create();
    accent_->load_from_data(style);
    Gtk::StyleContext::add_provider_for_display(
        display, accent_, GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

} // namespace gtk
