// The looks that the desktop asks for.

#include "harness/AppProcess.h"
#include "harness/FakeService.h"
#include "harness/Process.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

constexpr unsigned noPreference = 0;
constexpr unsigned dark = 1;
constexpr unsigned highContrast = 1;

// The portal through which a desktop tells programs how they are to look.
struct FakeSettingsPortal : FakeService {
    explicit FakeSettingsPortal(unsigned colorScheme)
        : FakeService(G_BUS_TYPE_SESSION, "org.freedesktop.portal.Desktop",
            {
                {"ReadAll",
                    answering("({'org.freedesktop.appearance': {'color-scheme': <uint32 "
                        + std::to_string(colorScheme) + ">, 'contrast': <uint32 0>}},)")},
                {"CreateMonitor", answering("(objectpath '/monitor',)")}, // by the toolkit
            })
    {
    }

    // The user changes their mind.
    void change(const char* key, unsigned value)
    {
        emit("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
            g_variant_new_parsed("('org.freedesktop.appearance', %s, <%u>)", key, value));
    }
};

// How light the tab strip's ground is, 0 to 255; absent while there is no window to see.
std::optional<int> stripLightness(const DesktopWindow& window)
{
    const auto picture = window.picture();
    if (!picture)
        return std::nullopt;
    constexpr int inset = 4; // left of the first tab
    constexpr int stripMiddle = 70;
    const auto pixel = picture->pixels[static_cast<std::size_t>(picture->width)
            * std::min(stripMiddle, picture->height - 1)
        + inset];
    return static_cast<int>((pixel & 0xff) + (pixel >> 8 & 0xff) + (pixel >> 16 & 0xff)) / 3;
}

bool comesToLookDark(const DesktopWindow& window, bool isDark)
{
    return eventually([&] {
        const auto lightness = stripLightness(window);
        return lightness && (*lightness < 128) == isDark;
    });
}

} // namespace

TEST(Appearance, followsTheDesktopAndIsKnownAtTheNextStart)
{
    DemoServiceProcess service;
    {
        FakeSettingsPortal portal(noPreference);
        AppProcess app(service);
        const auto window = app.waitForWindow();
        ASSERT_TRUE(window);
        EXPECT_TRUE(comesToLookDark(*window, false));
        const auto usual = stripLightness(*window);
        portal.change("contrast", highContrast);
        EXPECT_TRUE(eventually([&] { return stripLightness(*window) != usual; }));
        portal.change("color-scheme", dark);
        ASSERT_TRUE(comesToLookDark(*window, true));
        EXPECT_TRUE(app.waitForPage()); // a page that is still being started complains of the end
        window->close();
        EXPECT_TRUE(app.process().waitForExit());
    }
    AppProcess app(service); // with no portal at all
    ASSERT_TRUE(app.waitForPage());
    EXPECT_TRUE(comesToLookDark(*app.waitForWindow(), true));
}

} // namespace desktop
