#pragma once

namespace platform {

// How a page is searched. It is a plain value.
struct WKFindConfiguration {
    bool backwards = false;
    bool caseSensitive = false;
    bool wraps = true; // goes on at the other end of the page
};

struct WKFindResult {
    bool matchFound = false;
};

} // namespace platform
