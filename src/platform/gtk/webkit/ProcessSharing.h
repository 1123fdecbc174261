#pragma once

#include <vector>
#include <webkit/webkit.h>

namespace gtk {

// Which web views run their pages in the same content process. A process of its own costs a page
// 35 MB and half a second more; a shared one ends the pages of all when it dies, and lets a page
// that never rests hold up the others. So a few share one.
class ProcessSharing {
public:
    static constexpr std::size_t mostViews = 5; // in one process

    // A view whose process one more can join; null when that has to start its own.
    WebKitWebView* companion() const;

    // `view` has joined the process of `companion`, or started one where that is null. It must be
    // removed before it goes.
    void add(WebKitWebView* view, WebKitWebView* companion);
    void remove(WebKitWebView* view);

private:
    using Group = std::vector<WebKitWebView*>;

    std::vector<Group> groups_; // none is empty
};

} // namespace gtk
