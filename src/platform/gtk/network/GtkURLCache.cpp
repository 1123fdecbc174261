#include "platform/gtk/network/GtkURLCache.h"

namespace gtk {

namespace {
constexpr unsigned mostBytes = 2'000'000;
}

GtkURLCache::GtkURLCache(std::filesystem::path folder)
    : folder_(std::move(folder))
{
}

GtkURLCache::~GtkURLCache()
{
    if (cache_)
        soup_cache_dump(cache_.get());
}

void GtkURLCache::removeAllCachedResponses()
{
    std::error_code ignored; // a folder that cannot be looked at holds nothing
    if (!cache_ && !std::filesystem::exists(folder_, ignored))
        return;
    soup_cache_clear(cache());
    soup_cache_dump(cache());
}

void GtkURLCache::attach(SoupSession* session)
{
    soup_session_add_feature(session, SOUP_SESSION_FEATURE(cache()));
}

SoupCache* GtkURLCache::cache()
{
    if (!cache_) {
        cache_.reset(soup_cache_new(folder_.c_str(), SOUP_CACHE_SINGLE_USER));
        soup_cache_set_max_size(cache_.get(), mostBytes);
        soup_cache_load(cache_.get());
    }
    return cache_.get();
}

} // namespace gtk
