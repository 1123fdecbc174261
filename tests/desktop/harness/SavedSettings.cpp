#include "SavedSettings.h"

#include <fstream>
#include <libsoup/soup.h>

namespace desktop {

std::filesystem::path SavedSettings::path()
{
    return std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "velmaro-online"
        / "settings.json";
}

nlohmann::json SavedSettings::read()
{
    std::ifstream file(path());
    auto settings = nlohmann::json::parse(file, nullptr, false);
    return settings.is_discarded() ? nlohmann::json() : settings;
}

void SavedSettings::write(const nlohmann::json& settings)
{
    std::filesystem::create_directories(path().parent_path());
    std::ofstream(path()) << settings.dump(4) << '\n';
}

void SavedSettings::writePermissions(const nlohmann::json& permissions)
{
    std::filesystem::create_directories(path().parent_path());
    std::ofstream(path().parent_path() / "permissions.json") << permissions.dump(4) << '\n';
}

void SavedSettings::signIn(const std::string& firstname, const std::string& lastname)
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
