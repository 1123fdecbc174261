#include "platform/sparkle/SUAppcast.h"
#include "platform/sparkle/SUReleaseNotes.h"

#include <gtest/gtest.h>

namespace {

using platform::SUAppcast;
using platform::SUAppcastItem;

constexpr auto enclosure =
    R"(<enclosure url="https://a/b.deb" length="7" sparkle:edSignature="S"/>)";

std::string feed(const std::string& items)
{
    return "<rss><channel>" + items + "</channel></rss>";
}

std::string item(const std::string& content)
{
    return "<item>" + content + "</item>";
}

std::string repeated(const std::string& text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

} // namespace

TEST(Appcast, readsItemsAsFeedsWriteThem)
{
    const SUAppcastItem whole{"41", "2.3", "New: a & b", "https://a/b.deb", 7, "S"};
    const SUAppcastItem bare{"41", "41", "", "https://a/b.deb", 7, "S"};
    const std::pair<std::string, std::vector<SUAppcastItem>> cases[] = {
        {item("<sparkle:version> 41\n</sparkle:version><sparkle:shortVersionString>2.3"
              "</sparkle:shortVersionString><description><![CDATA[<p>New:\n a &amp; b</p>]]>"
              "</description>"
             + std::string(enclosure)),
            {whole}},
        {item(R"(<enclosure sparkle:version="41" url="https://a/b.deb" length="7"
                 sparkle:edSignature="S" sparkle:os="linux"/>)"),
            {bare}},

        // Not for this system, or not usable.
        {item(R"(<enclosure sparkle:version="41" url="x" length="7" sparkle:os="macos"/>)"), {}},
        {item(enclosure), {}},
        {item(R"(<enclosure sparkle:version="41" length="7"/>)"), {}},
        {item(R"(<enclosure sparkle:version="41" url="x" length="7x"/>)"), {}},
    };
    for (const auto& [content, items] : cases) {
        const auto appcast = SUAppcast::parse(feed(content));
        ASSERT_TRUE(appcast) << content;
        EXPECT_EQ(appcast->items, items) << content;
    }
}

TEST(Appcast, refusesWhatIsNoFeed)
{
    const std::string refused[] = {
        "",
        "<rss/>",
        "<rss><channel></rss></channel>",
        feed("\xff\xfe"),
        R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;">]>)"
            + feed(item("<sparkle:version>&b;</sparkle:version>" + std::string(enclosure))),
        repeated("<a>", 200'000),
    };
    for (const auto& text : refused)
        EXPECT_FALSE(SUAppcast::parse(text)) << text.substr(0, 80);
    EXPECT_TRUE(SUAppcast::parse(feed(repeated("<a>", 100'000) + repeated("</a>", 100'000))));
}

TEST(Appcast, theNewestIsTheHighestVersionWhereverItStands)
{
    const auto version = [](const std::string& text) {
        return item("<sparkle:version>" + text + "</sparkle:version>" + enclosure);
    };
    const auto appcast = SUAppcast::parse(feed(version("9") + version("10") + version("2")));
    ASSERT_TRUE(appcast && appcast->newest());
    EXPECT_EQ(appcast->newest()->versionString, "10");
    EXPECT_EQ(SUAppcast().newest(), nullptr);
}

TEST(ReleaseNotes, areTheTextsOfTheirDocument)
{
    const std::pair<const char*, const char*> cases[] = {
        {"<h2>New  words</h2><ul><li>One</li>\n<li>T<b>w</b>o &lt;3</li></ul><p>End",
            "New words\n• One\n• Two <3\nEnd"},
        {"<style>p { color: red }</style><script>if (a < b) { }</script>a<br>b", "a\nb"},
        {"<script>never ends", ""},
        {"1 < 2, &copy; &amp;lt;", "1 < 2, &copy; &lt;"},
    };
    for (const auto& [html, text] : cases)
        EXPECT_EQ(platform::plainText(html), text) << html;
}
