#pragma once

#include <libsoup/soup.h>
#include <string>
#include <vector>

namespace desktop {

// A geocoding service on loopback that says what the test tells it to. It runs in the test's main
// loop.
class FakeGeocoder {
public:
    FakeGeocoder();
    ~FakeGeocoder();

    FakeGeocoder(const FakeGeocoder&) = delete;
    FakeGeocoder& operator=(const FakeGeocoder&) = delete;

    std::string address() const;

    // The same answer to every question from now on; starts the service anew if it was stopped.
    void answer(std::string body, unsigned status = 200, std::string cacheControl = "no-store");

    // From now on questions stay open until `answerHeld`, which counts them from the first that was
    // held.
    void hold() { isHolding_ = true; }
    void answerHeld(std::size_t index, const std::string& body);

    // Refuses connections, and drops those that there are.
    void stop();

    // The texts that were searched for and the numbers of places asked for, oldest first.
    const std::vector<std::string>& questions() const { return questions_; }
    const std::vector<std::string>& limits() const { return limits_; }

private:
    void listen();
    void receive(SoupServerMessage* message, GHashTable* query);
    void send(SoupServerMessage* message, const std::string& body, unsigned status) const;

    SoupServer* server_ = nullptr; // null while stopped
    unsigned port_ = 0;
    std::string body_;
    unsigned status_ = 200;
    std::string cacheControl_;
    bool isHolding_ = false;
    std::vector<SoupServerMessage*> held_;
    std::vector<std::string> questions_;
    std::vector<std::string> limits_;
};

} // namespace desktop
