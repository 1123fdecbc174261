#include "platform/gtk/webkit/PageSearch.h"

#include <utility>

namespace gtk {

namespace {

guint32 optionsOf(const platform::WKFindConfiguration& configuration)
{
    guint32 options = WEBKIT_FIND_OPTIONS_NONE;
    if (configuration.backwards)
        options |= WEBKIT_FIND_OPTIONS_BACKWARDS;
    if (!configuration.caseSensitive)
        options |= WEBKIT_FIND_OPTIONS_CASE_INSENSITIVE;
    if (configuration.wraps)
        options |= WEBKIT_FIND_OPTIONS_WRAP_AROUND;
    return options;
}

} // namespace

PageSearch::PageSearch(WebKitWebView* view)
    : controller_(webkit_web_view_get_find_controller(view))
{
    signals_.connect(controller_, "found-text",
        G_CALLBACK(+[](WebKitFindController*, guint, PageSearch* self) { self->answer(true); }),
        this);
    signals_.connect(controller_, "failed-to-find-text",
        G_CALLBACK(+[](WebKitFindController*, PageSearch* self) { self->answer(false); }), this);
}

void PageSearch::find(const std::string& text, const platform::WKFindConfiguration& configuration,
    Completion completion)
{
    waiting_.push_back(std::move(completion));
    webkit_find_controller_search(controller_, text.c_str(), optionsOf(configuration), 0);
}

void PageSearch::answer(bool matchFound)
{
    if (waiting_.empty())
        return;
    const auto completion = std::move(waiting_.front());
    waiting_.pop_front();
    // Takes the engine's own marks away, of which clearing the selection would leave some.
    webkit_find_controller_search_finish(controller_);
    completion({.matchFound = matchFound});
}

} // namespace gtk
