#include "app/VelmaroOnlineApp.h"
#include "platform/gtk/GtkPlatform.h"
#include "service/Service.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int usageError = 2;

// How the session bus starts the program to hand it something, such as a click on a notification.
// The toolkit reads it in place of an address.
constexpr auto serviceOption = "--gapplication-service";

// Looks at what the program needs, for whoever helps its user.
constexpr auto diagnoseOption = "--diagnose";

constexpr auto help = R"(Usage: velmaro-online [ADDRESS]

Opens Velmaro Online, or brings it forward where it runs already. ADDRESS is a
page to show in it, such as velmaro://page/drives.

  --diagnose  Tell how this computer fits the program
  --help      Show this text
  --version   Show the version

VELMARO_SERVICE_ORIGIN       https origin of the web service
VELMARO_CHECKOUT_HOSTS       the payment provider's two hosts, where they are others
VELMARO_SERVICE_CERTIFICATE  PEM file with a certificate to trust for these hosts
VELMARO_GEOCODER             address of the Photon service that finds places
VELMARO_UPDATE_FEED          https address of the feed of newer versions
VELMARO_UPDATE_KEY           public key that their packages are signed with
)";

std::string setting(const char* name, const char* otherwise)
{
    const char* value = std::getenv(name);
    return value ? value : otherwise;
}

int fail(const std::string& line)
{
    std::fprintf(stderr, "velmaro-online: %s\n", line.c_str());
    return usageError;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::string argument = argumentCount > 1 ? arguments[1] : "";
    if (argument == "--help") {
        std::fputs(help, stdout);
        return EXIT_SUCCESS;
    }
    if (argument == "--version") {
        std::puts("Velmaro Online " VELMARO_VERSION);
        return EXIT_SUCCESS;
    }
    if (argument.starts_with("-") && argument != serviceOption && argument != diagnoseOption)
        return fail("there is no option " + argument + "; --help tells which there are");

    // Texts for people follow the user's language; numbers, which stand in scripts and files, do
    // not.
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");

    const auto updateFeed = setting("VELMARO_UPDATE_FEED", VELMARO_UPDATE_FEED);
    if (!updateFeed.empty() && !updateFeed.starts_with("https://"))
        return fail("VELMARO_UPDATE_FEED is not an https address: " + updateFeed);

    gtk::GtkPlatform platform({
        .identifier = "example.velmaro.Online",
        .address = argument.empty() ? std::nullopt : std::optional(argument),
        .geocoder = setting("VELMARO_GEOCODER", VELMARO_GEOCODER),
        .updateFeed = updateFeed,
        .updateKey = setting("VELMARO_UPDATE_KEY", VELMARO_UPDATE_KEY),
    });

    auto& service = velmaro::Service::current();
    if (const char* origin = std::getenv("VELMARO_SERVICE_ORIGIN")) {
        if (!service.setServiceOrigin(origin))
            return fail(
                "VELMARO_SERVICE_ORIGIN is not an https origin such as https://example.com: "
                + std::string(origin));
    }
    std::vector<std::string> ownHosts = {service.serviceHost()};
    if (const char* hosts = std::getenv("VELMARO_CHECKOUT_HOSTS")) {
        if (!service.setPaymentCheckoutHosts(hosts))
            return fail("VELMARO_CHECKOUT_HOSTS is not two host names with a blank between them: "
                + std::string(hosts));
        const auto& named = service.paymentCheckoutHosts();
        ownHosts.insert(ownHosts.end(), named.begin(), named.end());
    }
    if (const char* path = std::getenv("VELMARO_SERVICE_CERTIFICATE")) {
        if (const auto failure = platform.trust(ownHosts, path))
            return fail("VELMARO_SERVICE_CERTIFICATE cannot be used: " + *failure);
    }
    platform.expectHost(service.serviceHost());

    if (argument == diagnoseOption)
        return platform.diagnose(service.serviceOrigin());

    velmaro::VelmaroOnlineApp app;
    const int status = app.run();
    if (platform.wantsRestart())
        execvp(arguments[0], arguments);
    return status;
}
