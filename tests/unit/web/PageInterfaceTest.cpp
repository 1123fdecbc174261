// What is written for the people who write pages, against what the program and the demo's pages do.

#include "app/PageMessages.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace {

using Names = std::set<std::string>;

const std::filesystem::path root = VELMARO_SOURCE_FOLDER;

std::string textOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    std::vector<std::filesystem::path> files{root / path};
    if (std::filesystem::is_directory(root / path)) {
        const std::filesystem::recursive_directory_iterator entries(root / path);
        files.assign(begin(entries), end(entries));
    }
    for (const auto& file : files) {
        if (std::filesystem::is_regular_file(file))
            text << std::ifstream(file).rdbuf() << '\n';
    }
    EXPECT_GT(text.str().size(), 1u) << path;
    return text.str();
}

// The first group of every match.
Names namesIn(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    Names names;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match)
        names.insert(match->str(1));
    EXPECT_FALSE(names.empty()) << "nothing looks like " << pattern;
    return names;
}

Names operator+(Names first, const Names& second)
{
    first.insert(second.begin(), second.end());
    return first;
}

Names operator-(Names first, const Names& second)
{
    std::erase_if(first, [&](const auto& name) { return second.contains(name); });
    return first;
}

struct PageInterface : testing::Test {
    const std::string types = textOf("docs/velmaro-desktop.d.ts");
    const std::string prose = textOf("docs/page-interface.md");
    const std::string program = textOf("src/web") + textOf("src/location") + textOf("src/app");
    const std::string pages = textOf("demo/pages/scripts") + textOf("demo/pages/welcome.html");

    // Names of code in the prose, with those in lists and calls.
    const Names described = namesIn(prose, R"([`.{ (,](\w+)(?=[`}(),:. =]))");
};

} // namespace

TEST_F(PageInterface, namesEveryBridge)
{
    Names registered;
    for (const auto& rule : velmaro::pageMessageRules())
        registered.insert(rule.name);
    const auto* name = R"(\b([a-z]\w*Bridge)\b)";
    EXPECT_EQ(namesIn(types, name), registered);
    EXPECT_EQ(namesIn(prose, name), registered);
    EXPECT_EQ(namesIn(program, name), registered);
    EXPECT_EQ(namesIn(program, R"(messageHandlers\.(\w+))") - registered, Names());
    // The watcher that the program adds to them posts the last one.
    EXPECT_EQ(namesIn(pages, name), registered - Names{"authBridge"});
}

TEST_F(PageInterface, namesEveryMemberOfAMessage)
{
    const auto messages = types.substr(0, types.find("interface VelmaroBridge<"));
    const auto members = namesIn(messages, R"(\b(\w+)\??: string)");
    const auto read = namesIn(program, R"re(stringMember\(body, "(\w+)"\))re");
    EXPECT_EQ(read - members, Names());
    // The demo's pages put members down as `name: value` or, in short, as `name`.
    const auto used = read + namesIn(pages, R"(\b(\w+)(?=[:, ]))");
    EXPECT_EQ(members - used, Names());
    EXPECT_EQ(members - described, Names());
}

TEST_F(PageInterface, namesEveryGlobal)
{
    const auto set = namesIn(program, R"(\b(__vl\w+))");
    EXPECT_EQ(namesIn(types, R"(\b(__vl\w+))"), set);
    EXPECT_EQ(namesIn(prose, R"(\b(__vl\w+))"), set);
    EXPECT_EQ(namesIn(pages, R"(\b(__vl\w+))") - set, Names());
    for (const auto* name : {"currentUser", "_currentPage"}) {
        for (const auto* text : {&types, &prose, &program, &pages})
            EXPECT_NE(text->find(name), std::string::npos) << name;
    }
}

TEST_F(PageInterface, namesEveryFunction)
{
    const auto declared = namesIn(types, R"(declare function (\w+)\()");
    const auto called = namesIn(program, R"(typeof (\w+) === 'function')")
        + namesIn(program, R"re(NewItem\{"\w+", "\w+", "(\w+)"\})re")
        + namesIn(program, R"re("(view\w+)")re");
    EXPECT_EQ(called - declared, Names());
    EXPECT_EQ(declared - described, Names());
    const auto defined =
        namesIn(pages, R"(function (\w+)\()") + namesIn(pages, R"(window\.(\w+) =)");
    EXPECT_EQ(declared - defined, Names());
}
