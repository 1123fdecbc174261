#include "InstalledProgram.h"

#include <cstdlib>
#include <fstream>
#include <gio/gio.h>

namespace desktop {

void installProgram(const DemoServiceProcess& service)
{
    const std::filesystem::path data = std::getenv("XDG_DATA_HOME");
    const auto program = data / "start-velmaro";
    std::filesystem::create_directories(data / "dbus-1/services");
    std::ofstream script(program);
    script << "#!/bin/sh\nexec env";
    for (const auto& [name, value] : service.clientEnvironment())
        script << " '" << name << '=' << value << '\'';
    script << " " VELMARO_ONLINE " --gapplication-service\n";
    script.close();
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    std::ofstream(data / "dbus-1/services/example.velmaro.Online.service")
        << "[D-BUS Service]\nName=example.velmaro.Online\nExec=" << program.string() << '\n';

    auto* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    auto* reply = g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
        "org.freedesktop.DBus", "ReloadConfig", nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, nullptr);
    g_clear_pointer(&reply, g_variant_unref);
    g_object_unref(bus);
}

} // namespace desktop
