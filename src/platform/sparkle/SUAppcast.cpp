#include "platform/sparkle/SUAppcast.h"

#include "platform/sparkle/SUReleaseNotes.h"
#include "platform/sparkle/SUVersionComparison.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <glib.h>
#include <pugixml.hpp>

namespace platform {

namespace {

constexpr auto thisSystem = "linux";

// Without blanks at its ends, and in UTF-8: a reference such as &#xD800; can name no character.
std::string trimmed(const char* text)
{
    std::string_view view(text);
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    while (!view.empty() && isBlank(view.front()))
        view.remove_prefix(1);
    while (!view.empty() && isBlank(view.back()))
        view.remove_suffix(1);
    g_autofree char* valid = g_utf8_make_valid(view.data(), static_cast<gssize>(view.size()));
    return valid;
}

std::uint64_t number(const char* text)
{
    std::uint64_t value = 0;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    return error == std::errc() && stop == end ? value : 0;
}

// An element of the item, or the attribute of its enclosure that older feeds have in its place.
std::string value(const pugi::xml_node& item, const char* name)
{
    if (const auto element = item.child(name))
        return trimmed(element.child_value());
    return trimmed(item.child("enclosure").attribute(name).value());
}

bool isForThisSystem(const pugi::xml_node& enclosure)
{
    const auto system = enclosure.attribute("sparkle:os");
    return !system || std::strcmp(system.value(), thisSystem) == 0;
}

std::string notes(const pugi::xml_node& description)
{
    const bool isPlain =
        std::strcmp(description.attribute("sparkle:format").value(), "plain-text") == 0;
    const auto text = trimmed(description.child_value());
    return isPlain ? text : plainText(text);
}

bool hasDocumentType(const pugi::xml_document& document)
{
    return std::ranges::any_of(
        document.children(), [](const auto& node) { return node.type() == pugi::node_doctype; });
}

} // namespace

std::optional<SUAppcast> SUAppcast::parse(std::string_view text)
{
    if (!g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr))
        return std::nullopt;
    pugi::xml_document document;
    const auto result = document.load_buffer(
        text.data(), text.size(), pugi::parse_default | pugi::parse_doctype, pugi::encoding_utf8);
    const auto channel = document.child("rss").child("channel");
    if (!result || !channel || hasDocumentType(document))
        return std::nullopt;

    SUAppcast appcast;
    for (const auto& element : channel.children("item")) {
        const auto enclosure = element.child("enclosure");
        SUAppcastItem item{
            .versionString = value(element, "sparkle:version"),
            .displayVersionString = value(element, "sparkle:shortVersionString"),
            .itemDescription = notes(element.child("description")),
            .fileURL = trimmed(enclosure.attribute("url").value()),
            .contentLength = number(enclosure.attribute("length").value()),
            .edSignature = trimmed(enclosure.attribute("sparkle:edSignature").value()),
        };
        if (item.versionString.empty() || item.fileURL.empty() || item.contentLength == 0
            || !isForThisSystem(enclosure))
            continue;
        if (item.displayVersionString.empty())
            item.displayVersionString = item.versionString;
        appcast.items.push_back(std::move(item));
    }
    return appcast;
}

const SUAppcastItem* SUAppcast::newest() const
{
    const auto found = std::ranges::max_element(items, [](const auto& left, const auto& right) {
        return std::is_lt(compareVersions(left.versionString, right.versionString));
    });
    return found == items.end() ? nullptr : &*found;
}

} // namespace platform
