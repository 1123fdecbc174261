#include "service/ImportedTable.h"

#include <algorithm>

namespace demo {

namespace {

using Row = std::vector<std::string>;

class Reader {
public:
    explicit Reader(std::string_view text)
        : text_(text)
    {
        const auto firstLine = text.substr(0, text.find('\n'));
        const auto occurrences = [&](char character) {
            return std::count(firstLine.begin(), firstLine.end(), character);
        };
        separator_ = occurrences(';') > occurrences(',') ? ';' : ',';
    }

    bool isAtEnd() const { return at_ >= text_.size(); }

    Row row()
    {
        Row cells{{}};
        bool isQuoted = false;
        for (; !isAtEnd(); ++at_) {
            const char character = text_[at_];
            if (!isQuoted && character == '\n')
                break;
            if (!isQuoted && character == separator_) {
                cells.emplace_back();
            } else if (character == '"' && (isQuoted ? !nextIsQuote() : cells.back().empty())) {
                isQuoted = !isQuoted;
            } else if (isQuoted || character != '\r') {
                cells.back() += character;
                at_ += isQuoted && character == '"' ? 1 : 0; // The second of a doubled one.
            }
        }
        ++at_;
        return cells;
    }

private:
    bool nextIsQuote() const { return at_ + 1 < text_.size() && text_[at_ + 1] == '"'; }

    std::string_view text_;
    std::size_t at_ = 0;
    char separator_;
};

} // namespace

std::vector<nlohmann::json> importedTable(std::string_view text, std::size_t mostRows)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    Reader reader(text);
    const Row names = reader.row();

    std::vector<nlohmann::json> table;
    while (!reader.isAtEnd() && table.size() < mostRows) {
        const Row cells = reader.row();
        if (cells.size() == 1 && cells[0].empty())
            continue;
        auto row = nlohmann::json::object();
        for (std::size_t column = 0; column < std::min(names.size(), cells.size()); ++column)
            row[names[column]] = cells[column];
        table.push_back(std::move(row));
    }
    return table;
}

} // namespace demo
