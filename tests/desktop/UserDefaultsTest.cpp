#include "platform/gtk/foundation/GtkUserDefaults.h"

#include "harness/Files.h"
#include "harness/MainLoop.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"

#include <csignal>
#include <fstream>
#include <glib.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <sys/wait.h>

namespace gtk {

namespace {

using desktop::contentsOf;
using desktop::until;
using Json = nlohmann::json;
using Strings = std::vector<std::string>;

platform::Data bytes(std::string_view text)
{
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

} // namespace

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest()
    {
        auto name = (std::filesystem::temp_directory_path() / "settings-XXXXXX").string();
        folder = ::mkdtemp(name.data());
        path = folder / "config" / "settings.json";
        open();
    }

    ~UserDefaultsTest() override
    {
        settings.reset();
        std::filesystem::remove_all(folder);
    }

    void open()
    {
        settings.reset();
        settings = std::make_unique<GtkUserDefaults>(
            path, queue, [this](const auto& line) { log.push_back(line); });
    }

    void write(const std::string& text)
    {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }

    Json stored() const { return Json::parse(contentsOf(path), nullptr, false); }

    GtkDispatchQueue queue;
    std::filesystem::path folder;
    std::filesystem::path path;
    Strings log;
    std::unique_ptr<GtkUserDefaults> settings;
};

TEST_F(UserDefaultsTest, valuesOfEachTypeComeBackToTheUserAlone)
{
    settings->setStringArray("routes", {"drives", "", "ü \"\\\n"});
    settings->setInteger("active", -3);
    settings->setBoolean("shown", true);
    settings->setData("identity", bytes("{\"firstname\": \"\xff\"}"));
    settings->setData("nothing", {});
    settings->setInteger("removed", 1);
    settings->removeObject("removed");
    open();

    EXPECT_EQ(settings->stringArray("routes"), (Strings{"drives", "", "ü \"\\\n"}));
    EXPECT_EQ(settings->integer("active"), -3);
    EXPECT_TRUE(settings->boolean("shown"));
    EXPECT_EQ(settings->data("identity"), bytes("{\"firstname\": \"\xff\"}"));
    EXPECT_EQ(settings->data("nothing"), platform::Data());
    EXPECT_FALSE(settings->contains("removed"));
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0600));
}

TEST_F(UserDefaultsTest, aMemberOfAnotherTypeIsAnAbsence)
{
    for (const std::string json : {"\"7\"", "[\"a\", 1]", "{\"data\": \"YW?Jj\"}"}) {
        SCOPED_TRACE(json);
        write("{\"key\": " + json + "}");
        open();
        EXPECT_TRUE(settings->contains("key"));
        EXPECT_FALSE(settings->stringArray("key"));
        EXPECT_EQ(settings->integer("key"), 0);
        EXPECT_FALSE(settings->boolean("key"));
        EXPECT_FALSE(settings->data("key"));
    }
    EXPECT_TRUE(log.empty());
}

TEST_F(UserDefaultsTest, aFullDiskLosesNothing)
{
    settings->setInteger("active", 1);
    settings->flush();

    std::signal(SIGXFSZ, SIG_IGN);
    rlimit previous{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &previous), 0);
    const rlimit tiny{.rlim_cur = 8, .rlim_max = previous.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tiny), 0);
    for (int i = 2; i < 10; ++i)
        settings->setInteger("active", i);
    const bool isLogged = until([&] { return !log.empty(); });
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &previous), 0);

    EXPECT_TRUE(isLogged);
    EXPECT_EQ(log.size(), 1u) << "eight changes of one turn are one failure";
    EXPECT_EQ(stored(), (Json{{"active", 1}}));
    EXPECT_EQ(settings->integer("active"), 9);
    const std::filesystem::directory_iterator files(path.parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "half a file is left behind";

    settings->flush(); // there is room again
    EXPECT_EQ(stored(), (Json{{"active", 9}}));
}

TEST_F(UserDefaultsTest, aSymbolicLinkIsKept)
{
    const auto target = folder / "elsewhere" / "mine.json";
    std::filesystem::create_directories(path.parent_path());
    std::filesystem::create_symlink("../elsewhere/mine.json", path); // leads nowhere yet
    settings->setInteger("active", 1);
    settings->flush();
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(Json::parse(contentsOf(target)), (Json{{"active", 1}}));
}

TEST_F(UserDefaultsTest, aKillAtAnyMomentLeavesAWholeFile)
{
    const Strings routes(2000, "drives");
    settings->setStringArray("routes", routes);
    settings->setInteger("active", 0);
    settings->flush();

    for (int i = 0; i < 20; ++i) {
        const auto child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int j = 0;; ++j) {
                settings->setInteger("active", j);
                settings->flush();
            }
        }
        g_usleep(1000 + static_cast<gulong>(i) * 700);
        ::kill(child, SIGKILL);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);

        const auto text = stored();
        ASSERT_TRUE(text.is_object());
        EXPECT_EQ(text["routes"], routes);
        EXPECT_TRUE(text["active"].is_number());
    }
}

} // namespace gtk
