#include "about/AboutView.h"

#include "about/AboutLinkButton.h"
#include "about/AboutStoreButton.h"
#include "platform/appkit/NSApplication.h"
#include "platform/foundation/Bundle.h"
#include "platform/ui/Views.h"
#include "service/Service.h"

#include <ctime>

namespace velmaro {

using ui::Color;
using ui::HStack;
using ui::Spacer;
using ui::Text;
using ui::View;
using ui::VStack;
using enum ui::Font::Weight;

namespace {

constexpr auto appStoreURL = "https://apps.apple.com/app/velmaro-online";
constexpr auto googlePlayURL =
    "https://play.google.com/store/apps/details?id=example.velmaro.online";

std::string bundleText(const char* key, const char* otherwise)
{
    return platform::Bundle::main().stringForInfoDictionaryKey(key).value_or(otherwise);
}

std::string copyrightLine()
{
    const std::time_t now = std::time(nullptr);
    std::tm today = {};
    localtime_r(&now, &today);
    return "© " + std::to_string(today.tm_year + 1900) + " Velmaro. All rights reserved.";
}

View background()
{
    return ui::LinearGradient({
        .from = Color::rgb(0.09, 0.26, 0.48),
        .to = Color::rgb(0.04, 0.11, 0.22),
    });
}

View icon()
{
    const ui::Shadow shadow{.color = Color::black.withOpacity(0.35), .radius = 14, .y = 6};
    const bool hasImage = platform::NSApplication::shared().hasApplicationIconImage();
    const View picture = hasImage
        ? View(ui::ApplicationIcon({.shadow = shadow}))
        : View(ui::Symbol("car.fill",
            {.font = {.size = 56, .weight = semibold}, .color = Color::white, .shadow = shadow}));
    return picture.frame({.width = 128, .height = 128});
}

View nameAndVersion()
{
    return VStack{
        {.spacing = 6},
        Text(bundleText("CFBundleName", "Velmaro Online"),
            {.font = {.size = 22, .weight = semibold}, .color = Color::white}),
        Text(versionLine(), {.font = {.size = 12}, .color = Color::white.withOpacity(0.7)}),
    };
}

View description()
{
    const ui::TextOptions line{
        .font = {.size = 12}, .color = Color::white.withOpacity(0.8), .wraps = true};
    return VStack{
        {.spacing = 2},
        Text("A native macOS companion for Velmaro Online.", line),
        Text("Track, review, and manage your drives.", line),
    }
        .padding({.horizontal = 24});
}

View links()
{
    const auto& service = Service::current();
    const auto stores = HStack{
        {.spacing = 8},
        AboutStoreButton{"App Store", "for iPhone", "applelogo", appStoreURL},
        AboutStoreButton{"Google Play", "for Android", "play.fill", googlePlayURL},
    };
    return VStack{
        {.spacing = 8},
        AboutLinkButton{service.serviceHost(), service.serviceOrigin()},
        AboutLinkButton{"Help Center", service.helpURL()},
        AboutLinkButton{"Privacy Policy", service.privacyURL()},
        stores.padding({.top = 4}),
    }
        .padding({.horizontal = 32});
}

View copyright()
{
    return Text(copyrightLine(), {.font = {.size = 10}, .color = Color::white.withOpacity(0.5)})
        .padding({.bottom = 18});
}

} // namespace

std::string versionLine()
{
    return "Version " + bundleText("CFBundleShortVersionString", "1.0") + " ("
        + bundleText("CFBundleVersion", "1") + ")";
}

View AboutView::body() const
{
    return ui::ZStack{
        {},
        background(),
        VStack{
            {.spacing = 18},
            Spacer(24),
            icon(),
            nameAndVersion(),
            description(),
            links(),
            copyright(),
        },
    }
        .frame({.width = width, .height = height});
}

} // namespace velmaro
