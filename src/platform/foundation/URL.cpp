#include "platform/foundation/URL.h"

#include <memory>
#include <uriparser/Uri.h>

namespace platform {

namespace {

struct FreeUri {
    void operator()(UriUriA* uri) const
    {
        uriFreeUriMembersA(uri);
        delete uri;
    }
};

using ParsedUri = std::unique_ptr<UriUriA, FreeUri>;

ParsedUri parse(const std::string& text)
{
    auto uri = std::make_unique<UriUriA>();
    if (uriParseSingleUriExA(uri.get(), text.data(), text.data() + text.size(), nullptr)
        != URI_SUCCESS)
        return nullptr; // the parser has already freed what it had read
    return ParsedUri(uri.release());
}

std::optional<std::string> textOf(const UriTextRangeA& range)
{
    if (!range.first)
        return std::nullopt;
    return std::string(range.first, range.afterLast);
}

int hexValue(char digit)
{
    if (digit <= '9')
        return digit - '0';
    return (digit | 0x20) - 'a' + 10;
}

// The parser has made sure that two hexadecimal digits follow every percent sign.
std::string percentDecoded(const std::string& text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            decoded += static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::vector<std::string> pathComponentsOf(const UriUriA& uri)
{
    std::vector<std::string> components;
    if (uri.absolutePath || (uri.hostText.first && uri.pathHead))
        components.push_back("/");

    bool endsWithSlash = false;
    for (auto* segment = uri.pathHead; segment; segment = segment->next) {
        const auto name = textOf(segment->text).value_or("");
        endsWithSlash = name.empty();
        if (!name.empty())
            components.push_back(percentDecoded(name));
    }
    if (endsWithSlash && components.size() > 1)
        components.push_back("/");
    return components;
}

} // namespace

std::optional<URL> URL::fromString(std::string_view text)
{
    URL url;
    url.text_ = text;
    if (text.empty() || text.find('\0') != text.npos)
        return std::nullopt;

    const auto uri = parse(url.text_);
    if (!uri)
        return std::nullopt;

    url.scheme_ = textOf(uri->scheme);
    url.port_ = textOf(uri->portText);
    if (url.port_ && url.port_->empty())
        url.port_.reset();
    if (const auto host = textOf(uri->hostText); host && !host->empty())
        url.host_ = percentDecoded(*host);
    url.pathComponents_ = pathComponentsOf(*uri);
    url.isOrigin_ = url.scheme_ && url.host_ && !uri->userInfo.first && !uri->pathHead
        && !uri->query.first && !uri->fragment.first;
    return url;
}

} // namespace platform
