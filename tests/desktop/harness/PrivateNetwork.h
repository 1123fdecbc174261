#pragma once

namespace desktop {

// A network for the test alone, reached by everything that it starts from then on. At first nothing
// is connected, as on a laptop without a network; connected, there is the loopback and a route to
// everywhere else that leads nowhere.
class PrivateNetwork {
public:
    PrivateNetwork();

    // False where the system lets nobody but an administrator have a network.
    bool exists() const { return exists_; }

    void connect() { setConnected(true); }
    void disconnect() { setConnected(false); }

private:
    void setConnected(bool isConnected);

    bool exists_ = false;
};

} // namespace desktop
