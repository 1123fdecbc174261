#pragma once

namespace platform {

// The store of answers that services gave over the network, kept across launches so that the same
// question need not be asked twice. Web views have a store of their own. The platform owns it. Main
// thread only.
class URLCache {
public:
    // The one that all services of the application share.
    static URLCache& shared();

    virtual ~URLCache() = default;

    // Forgets every answer, in memory and on the disk, before it returns.
    virtual void removeAllCachedResponses() = 0;
};

} // namespace platform
