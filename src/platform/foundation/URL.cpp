#include "platform/foundation/URL.h"

#include "platform/foundation/PercentEncoding.h"

#include <algorithm>
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

std::vector<std::string> pathComponentsOf(const UriUriA& uri)
{
    std::vector<std::string> components;
    if (uri.absolutePath || (uri.hostText.first && uri.pathHead))
        components.emplace_back("/");

    bool endsWithSlash = false;
    for (auto* segment = uri.pathHead; segment; segment = segment->next) {
        const auto name = textOf(segment->text).value_or("");
        endsWithSlash = name.empty();
        if (!name.empty())
            components.push_back(percentDecoded(name));
    }
    if (endsWithSlash && components.size() > 1)
        components.emplace_back("/");
    return components;
}

std::string pathOf(const UriUriA& uri)
{
    std::string path;
    const char* separator = uri.absolutePath || uri.hostText.first ? "/" : "";
    for (auto* segment = uri.pathHead; segment; segment = segment->next) {
        path += separator + percentDecoded(textOf(segment->text).value_or(""));
        separator = "/";
    }
    return path;
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
    url.path_ = pathOf(*uri);
    url.pathComponents_ = pathComponentsOf(*uri);
    url.isOrigin_ = url.scheme_ && url.host_ && !uri->userInfo.first && !uri->pathHead
        && !uri->query.first && !uri->fragment.first;
    return url;
}

std::optional<URL> URL::encodingInvalidCharacters(std::string_view text)
{
    return fromString(withInvalidCharactersEncoded(text));
}

URL URL::fileURL(std::string_view path)
{
    return *fromString("file://" + percentEncodedPath(path));
}

bool URL::isFileURL() const
{
    return scheme_ && std::ranges::equal(*scheme_, std::string_view("file"), [](char a, char b) {
        return (a | 0x20) == b;
    });
}

std::string URL::lastPathComponent() const
{
    const auto name = std::find_if(pathComponents_.rbegin(), pathComponents_.rend(),
        [](const auto& component) { return component != "/"; });
    if (name != pathComponents_.rend())
        return *name;
    return pathComponents_.empty() ? "" : "/";
}

std::string URL::pathExtension() const
{
    const auto name = lastPathComponent();
    const auto dot = name.rfind('.');
    if (dot == name.npos || name.find_first_not_of('.') >= dot)
        return "";
    const auto extension = name.substr(dot + 1);
    return extension.find(' ') == extension.npos ? extension : "";
}

URL URL::appendingPathComponent(std::string_view name) const
{
    auto text = text_;
    if (!text.ends_with('/'))
        text += '/';
    return *fromString(text + percentEncodedPath(name));
}

} // namespace platform
