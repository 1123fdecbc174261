#include "platform/sparkle/SUReleaseNotes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace platform {

namespace {

constexpr std::array inlineElements = {
    "a", "abbr", "b", "code", "em", "i", "small", "span", "strong", "sub", "sup", "u"};
constexpr std::array unreadElements = {"script", "style", "title"};

constexpr std::array<std::pair<std::string_view, std::string_view>, 7> entities = {{
    {"&lt;", "<"},
    {"&gt;", ">"},
    {"&quot;", "\""},
    {"&apos;", "'"},
    {"&#39;", "'"},
    {"&nbsp;", " "},
    {"&amp;", "&"},
}};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Collects words and lines without blanks at their ends and with one empty line at most between.
class Lines {
public:
    void add(std::string_view characters)
    {
        if (wantsBlank_ && !isAtLineStart())
            text_ += ' ';
        wantsBlank_ = false;
        text_ += characters;
    }
    void addBlank() { wantsBlank_ = true; }
    void endLine()
    {
        wantsBlank_ = false;
        if (!isAtLineStart())
            text_ += '\n';
    }
    std::string take()
    {
        while (text_.ends_with('\n'))
            text_.pop_back();
        return std::move(text_);
    }

private:
    bool isAtLineStart() const
    {
        return text_.empty() || text_.ends_with('\n') || text_.ends_with("• ");
    }

    std::string text_;
    bool wantsBlank_ = false;
};

// The element's name in lower case, with the slash of an end.
std::string tagName(std::string_view tag)
{
    std::string name;
    for (const char c : tag) {
        if (isBlank(c) || (c == '/' && !name.empty()))
            break;
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return name;
}

template <class Names> bool contains(const Names& names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

// What is left after the end of the element that has just begun.
std::string_view afterElement(std::string_view rest, const std::string& name)
{
    for (auto at = rest.find("</"); at != rest.npos; at = rest.find("</", at + 2)) {
        if (tagName(rest.substr(at + 2, name.size() + 1)).starts_with(name))
            return rest.substr(at);
    }
    return {};
}

} // namespace

std::string plainText(std::string_view html)
{
    Lines lines;
    const auto lastClose = html.rfind('>');
    const char* const endOfTags = lastClose == html.npos ? html.data() : html.data() + lastClose;
    while (!html.empty()) {
        // Behind the last ">" there is no tag, and looking for one at each "<" of a megabyte would
        // take minutes.
        const bool isTag = html.front() == '<' && html.data() < endOfTags;
        const auto close = isTag ? html.find('>') : html.npos;
        if (close != html.npos) {
            const auto name = tagName(html.substr(1, close - 1));
            html.remove_prefix(close + 1);
            if (contains(unreadElements, name))
                html = afterElement(html, name);
            else if (!contains(inlineElements, name.substr(name.starts_with('/') ? 1 : 0)))
                lines.endLine();
            if (name == "li")
                lines.add("• ");
            continue;
        }
        const auto entity = std::ranges::find_if(
            entities, [&](const auto& candidate) { return html.starts_with(candidate.first); });
        if (entity != entities.end()) {
            lines.add(entity->second);
            html.remove_prefix(entity->first.size());
        } else if (isBlank(html.front())) {
            lines.addBlank();
            html.remove_prefix(1);
        } else {
            lines.add(html.substr(0, 1));
            html.remove_prefix(1);
        }
    }
    return lines.take();
}

} // namespace platform
