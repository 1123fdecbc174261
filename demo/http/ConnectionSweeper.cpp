#include "http/ConnectionSweeper.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace demo {

namespace {

constexpr unsigned secondsBetweenSweeps = 2;

bool isLeft(GSocket* socket)
{
    tcp_info info{};
    socklen_t size = sizeof info;
    return getsockopt(g_socket_get_fd(socket), IPPROTO_TCP, TCP_INFO, &info, &size) == 0
        && info.tcpi_state == TCP_CLOSE_WAIT;
}

} // namespace

ConnectionSweeper::ConnectionSweeper()
{
    const auto sweep = [](gpointer self) -> gboolean {
        static_cast<ConnectionSweeper*>(self)->sweep();
        return G_SOURCE_CONTINUE;
    };
    timer_ = g_timeout_add_seconds(secondsBetweenSweeps, sweep, this);
}

ConnectionSweeper::~ConnectionSweeper()
{
    g_source_remove(timer_);
    for (const auto& [socket, wasLeft] : wasLeft_)
        g_object_unref(socket);
}

void ConnectionSweeper::watch(GSocket* socket)
{
    if (socket && wasLeft_.emplace(socket, false).second)
        g_object_ref(socket);
}

void ConnectionSweeper::sweep()
{
    for (auto entry = wasLeft_.begin(); entry != wasLeft_.end();) {
        auto& [socket, wasLeft] = *entry;
        if (!g_socket_is_closed(socket) && wasLeft)
            g_socket_close(socket, nullptr);
        if (g_socket_is_closed(socket)) {
            g_object_unref(socket);
            entry = wasLeft_.erase(entry);
            continue;
        }
        wasLeft = isLeft(socket);
        ++entry;
    }
}

} // namespace demo
