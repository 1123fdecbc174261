#pragma once

#include <gio/gio.h>
#include <string>

namespace gtk {

// One question to a service on a message bus, for a program that may wait. The service is started
// where that can be done.
struct BusQuestion {
    GBusType bus = G_BUS_TYPE_SESSION;
    const char* service = "";
    const char* path = "/";
    const char* interface = "org.freedesktop.DBus.Peer";
    const char* method = "Ping";
};

struct BusAnswer {
    GVariant* values = nullptr; // null when there is none
    std::string failure; // why there is none, in a few words for a person
};

BusAnswer ask(const BusQuestion& question);

} // namespace gtk
