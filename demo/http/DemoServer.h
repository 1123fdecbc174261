#pragma once

#include "http/Answer.h"
#include "http/Certificate.h"
#include "http/ConnectionSweeper.h"
#include "http/RequestLog.h"

#include <functional>
#include <libsoup/soup.h>
#include <memory>

namespace demo {

/// Carries requests from loopback https to a handler and its answers back.
/// Everything happens on the thread that runs GLib's default main context.
class DemoServer {
public:
    using Handler = std::function<Answer(const Request&)>;

    /// The log must outlive the server.
    DemoServer(RequestLog&, Handler);
    ~DemoServer();
    DemoServer(const DemoServer&) = delete;
    DemoServer& operator=(const DemoServer&) = delete;

    /// Listens on 127.0.0.1 and, where there is one, on [::1]; on any free port for 0.
    /// Throws std::runtime_error when that fails.
    void listen(const Certificate&, int port);

    /// 0 until the server listens.
    int port() const { return port_; }

private:
    struct Pending;

    void receive(SoupServerMessage*, const char* path);
    void send(const std::shared_ptr<Pending>&);

    RequestLog& log_;
    Handler handler_;
    ConnectionSweeper connections_;
    SoupServer* server_;
    int port_ = 0;
};

} // namespace demo
