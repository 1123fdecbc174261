#pragma once

#include <gio/gio.h>
#include <map>

namespace demo {

/// Closes the sockets whose client has gone.
///
/// The library's server, at least in version 3.2, keeps the socket of an idle connection open for
/// ever after the client has closed its end; a long run of tests would use up all descriptors.
class ConnectionSweeper {
public:
    ConnectionSweeper();
    ~ConnectionSweeper();
    ConnectionSweeper(const ConnectionSweeper&) = delete;
    ConnectionSweeper& operator=(const ConnectionSweeper&) = delete;

    /// Watches the socket of a connection; watching it again changes nothing.
    void watch(GSocket*);

private:
    /// A socket goes when two sweeps in a row find it left: the first may just have come before
    /// the library noticed by itself.
    void sweep();

    std::map<GSocket*, bool> wasLeft_; ///< Each socket is owned once.
    unsigned timer_ = 0;
};

} // namespace demo
