// Feeds of newer versions, and the notes in them.

#include "fuzz/Target.h"
#include "fuzz/Utf8.h"
#include "platform/sparkle/SUAppcast.h"
#include "platform/sparkle/SUReleaseNotes.h"
#include "platform/sparkle/SUVersionComparison.h"

#include <string>

using fuzz::require;
using platform::compareVersions;

namespace {

void tryFeed(std::string_view text)
{
    const auto appcast = platform::SUAppcast::parse(text);
    if (!appcast)
        return;
    const auto* newest = appcast->newest();
    require((newest == nullptr) == appcast->items.empty(), "of any items one is the newest");
    for (const auto& item : appcast->items) {
        require(!item.versionString.empty() && !item.displayVersionString.empty(),
            "an item on offer has a version");
        require(!item.fileURL.empty() && item.contentLength > 0, "an item on offer has a package");
        for (const auto* shown : {&item.displayVersionString, &item.itemDescription})
            require(fuzz::charactersOf(*shown).has_value(), "what is shown is UTF-8");
        require(compareVersions(item.versionString, newest->versionString) <= 0,
            "nothing is newer than the newest");
    }
}

void tryVersions(std::string_view left, std::string_view right)
{
    require(compareVersions(left, left) == 0, "a version is as new as itself");
    require(compareVersions(left, right) == 0 <=> compareVersions(right, left),
        "the order of two versions does not depend on which is named first");
}

void tryNotes(std::string_view html)
{
    const auto text = platform::plainText(html);
    require(text.find("\n\n") == text.npos, "notes have no empty lines");
    require(!text.starts_with('\n') && !text.ends_with('\n'), "notes begin and end with a text");
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    tryFeed(input);
    tryNotes(input);
    tryVersions(input.substr(0, input.size() / 2), input.substr(input.size() / 2));

    // One item whose content is the input.
    tryFeed("<rss><channel><item><sparkle:version>2</sparkle:version><enclosure url=\"https://a\" "
            "length=\"7\"/>"
        + std::string(input) + "</item></channel></rss>");
}
