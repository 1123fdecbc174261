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
    const SUAppcastItem expected{"41", "2.3", "New: a & b", "https://a/b.deb", 7, "S"};
    SUAppcastItem withoutExtras = expected;
    withoutExtras.displayVersionString = "41";
    withoutExtras.itemDescription = "";
    struct Case {
        std::string text;
        std::vector<SUAppcastItem> items;
    };
    const Case cases[] = {
        {feed(""), {}},
        {feed(item("<sparkle:version> 41\n</sparkle:version><sparkle:shortVersionString>2.3"
                   "</sparkle:shortVersionString><description><![CDATA[<p>New:\n a &amp; b</p>]]>"
                   "</description>"
             + std::string(enclosure))),
            {expected}},
        {feed(item(R"(<enclosure sparkle:version="41" url="https://a/b.deb" length="7"
                      sparkle:edSignature="S"/>)")),
            {withoutExtras}},
        {feed(item("<sparkle:version>41</sparkle:version>"
                   R"(<enclosure url="https://a/b.deb" length="7" sparkle:edSignature="S"
                      sparkle:os="linux"/>)")),
            {withoutExtras}},

        // Not for this system, or not usable.
        {feed(item("<sparkle:version>41</sparkle:version>"
                   R"(<enclosure url="https://a/b" length="7" sparkle:os="macos"/>)")),
            {}},
        {feed(item(enclosure)), {}},
        {feed(item("<sparkle:version>41</sparkle:version>")), {}},
        {feed(item("<sparkle:version>41</sparkle:version><enclosure length=\"7\"/>")), {}},
        {feed(item("<sparkle:version>4</sparkle:version><enclosure url=\"https://a\"/>")), {}},
        {feed(item("<sparkle:version>4</sparkle:version><enclosure url=\"x\" length=\"-7\"/>")),
            {}},
        {feed(item("<sparkle:version>4</sparkle:version><enclosure url=\"x\" length=\"7x\"/>")),
            {}},
        {feed(item("<sparkle:version>4</sparkle:version>"
                   "<enclosure url=\"x\" length=\"99999999999999999999\"/>")),
            {}},
    };
    for (const auto& [text, items] : cases) {
        const auto appcast = SUAppcast::parse(text);
        ASSERT_TRUE(appcast) << text;
        EXPECT_EQ(appcast->items, items) << text;
    }
}

TEST(Appcast, refusesWhatIsNoFeed)
{
    const std::string refused[] = {
        "",
        "not xml",
        "<html><body/></html>",
        "<rss/>",
        "<rss><channel>",
        "<rss><channel></rss></channel>",
        feed("\xff\xfe"),
        std::string("<rss><channel>\0</channel></rss>", 31),
        R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;">]>)"
            + feed(item("<sparkle:version>&b;</sparkle:version>" + std::string(enclosure))),
        R"(<!DOCTYPE rss SYSTEM "file:///etc/passwd">)" + feed(""),
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
    struct Case {
        std::string html;
        std::string text;
    };
    const Case cases[] = {
        {"plain  words\n here", "plain words here"},
        {"<h2>New</h2><ul><li>One</li>\n<li>T<b>w</b>o &lt;3</li></ul><p>End",
            "New\n• One\n• Two <3\nEnd"},
        {"a<br>b<BR/>c", "a\nb\nc"},
        {"<style>p { color: red }</style><script>if (a < b) { }</script>seen", "seen"},
        {"<script>never ends", ""},
        {"1 < 2, &copy; &amp;lt;", "1 < 2, &copy; &lt;"},
        {"<", "<"},
    };
    for (const auto& [html, text] : cases)
        EXPECT_EQ(platform::plainText(html), text) << html;
}
