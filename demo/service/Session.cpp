#include "service/Session.h"

#include "http/UrlText.h"

namespace demo {

namespace {

constexpr const char* cookieName = "velmaro_session";

Answer withCookie(Answer answer, const std::string& value, const std::string& seconds)
{
    return std::move(answer).with("Set-Cookie",
        std::string(cookieName) + '=' + value + "; Path=/; Max-Age=" + seconds
            + "; Secure; HttpOnly; SameSite=Lax");
}

} // namespace

nlohmann::json signedInUser(const Request& request)
{
    const auto value = request.cookie(cookieName);
    const auto dot = value ? value->find('.') : std::string::npos;
    if (dot == std::string::npos)
        return nullptr;
    return {
        {"firstname", percentDecoded(std::string_view(*value).substr(0, dot))},
        {"lastname", percentDecoded(std::string_view(*value).substr(dot + 1))},
    };
}

Answer signedIn(Answer answer, const std::string& firstname, const std::string& lastname)
{
    const std::string value = percentEncoded(firstname) + '.' + percentEncoded(lastname);
    return withCookie(std::move(answer), value, std::to_string(30 * 24 * 60 * 60));
}

Answer signedOut(Answer answer)
{
    return withCookie(std::move(answer), "", "0");
}

} // namespace demo
