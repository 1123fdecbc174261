#include "platform/sparkle/SUVersionComparison.h"

namespace platform {

namespace {

// One number or word of a version.
struct Part {
    enum class Kind { word, missing, number } kind = Kind::missing;
    std::string_view text = {}; // of a number: without zeros in front, so empty for zero
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

template <class Predicate> std::string_view takeWhile(std::string_view& text, Predicate holds)
{
    std::size_t length = 0;
    while (length < text.size() && holds(text[length]))
        ++length;
    const auto taken = text.substr(0, length);
    text.remove_prefix(length);
    return taken;
}

Part takePart(std::string_view& text)
{
    takeWhile(text, [](char c) { return !isDigit(c) && !isLetter(c); });
    if (text.empty())
        return {};
    if (isLetter(text.front()))
        return {Part::Kind::word, takeWhile(text, isLetter)};
    takeWhile(text, [](char c) { return c == '0'; });
    return {Part::Kind::number, takeWhile(text, isDigit)};
}

std::weak_ordering compare(const Part& left, const Part& right)
{
    if ((left.kind == Part::Kind::word) != (right.kind == Part::Kind::word))
        return left.kind == Part::Kind::word ? std::weak_ordering::less
                                             : std::weak_ordering::greater;
    if (left.kind != Part::Kind::word && left.text.size() != right.text.size())
        return left.text.size() <=> right.text.size();
    return left.text <=> right.text;
}

} // namespace

std::weak_ordering compareVersions(std::string_view left, std::string_view right)
{
    while (!left.empty() || !right.empty()) {
        const auto order = compare(takePart(left), takePart(right));
        if (std::is_neq(order))
            return order;
    }
    return std::weak_ordering::equivalent;
}

} // namespace platform
