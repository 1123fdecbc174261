#include "SavedCookies.h"

#include <cstdlib>
#include <filesystem>
#include <libsoup/soup.h>

namespace desktop {

void SavedCookies::signIn(const std::string& firstname, const std::string& lastname)
{
    const auto folder =
        std::filesystem::path(std::getenv("XDG_DATA_HOME")) / "velmaro-online" / "web";
    std::filesystem::create_directories(folder);
    SoupCookieJar* jar = soup_cookie_jar_db_new((folder / "cookies.sqlite").c_str(), FALSE);
    SoupCookie* cookie = soup_cookie_new("velmaro_session", (firstname + '.' + lastname).c_str(),
        "velmaro.localhost", "/", SOUP_COOKIE_MAX_AGE_ONE_DAY);
    soup_cookie_set_secure(cookie, TRUE);
    soup_cookie_set_http_only(cookie, TRUE);
    soup_cookie_jar_add_cookie(jar, cookie);
    g_object_unref(jar);
}

} // namespace desktop
