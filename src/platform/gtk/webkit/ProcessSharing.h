#pragma once

#include <vector>
#include <webkit/webkit.h>

namespace gtk {

// Which web views run their pages in the same content process. A process of its own costs a page
// 35 MB and half a second more; a shared one ends the pages of all when it dies, and lets a page
// that never rests hold up the others. So a few share one.
class ProcessSharing {
public:
    static constexpr std::size_t mostViews = 5; // in one process at a time

    // In one process over its life: what pages leave behind is given back only when it ends, which
    // a process that always has a view left never does.
    static constexpr std::size_t mostViewsEver = 20;

    // A view whose process one more can join; null when that has to start its own.
    WebKitWebView* companion() const;

    // `view` has joined the process of `companion`, or started one where that is null. It must be
    // removed before it goes.
    void add(WebKitWebView* view, WebKitWebView* companion);
    void remove(WebKitWebView* view);

    // The process of `view` has died: no more views join those that were in it. A view that starts
    // its first page there while they load theirs again can lose it, or take theirs away.
    void processDied(WebKitWebView* view);

private:
    struct Group {
        std::vector<WebKitWebView*> views; // never empty
        std::size_t viewsEver = 1;
    };

    std::vector<Group> groups_;
};

} // namespace gtk
