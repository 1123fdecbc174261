// Files that pages offer, from the server to the user's folder.

#include "harness/Files.h"
#include "platform/gtk/GtkPlatform.h"
#include "service/Service.h"
#include "web/Coordinator.h"
#include "web/DownloadList.h"
#include "webview/WebViewTest.h"

#include <set>

namespace desktop {

namespace {

using State = velmaro::DownloadItem::State;

// Makes the folder the one for downloads, as a user does who has set up the desktop so.
void setDownloadsFolder(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(g_get_user_config_dir());
    std::ofstream(std::filesystem::path(g_get_user_config_dir()) / "user-dirs.dirs")
        << "XDG_DOWNLOAD_DIR=\"" << folder.string() << "\"\n";
    g_reload_user_special_dirs_cache();
}

} // namespace

// A tab whose downloads go to an empty folder.
class DownloadTest : public WebViewTest {
protected:
    DownloadTest()
    {
        g_autofree char* path = g_dir_make_tmp("velmaro-downloads-XXXXXX", nullptr);
        folder = path;
        setDownloadsFolder(folder);
    }

    ~DownloadTest() override
    {
        closeView();
        std::filesystem::remove_all(folder);
    }

    void SetUp() override
    {
        ASSERT_TRUE(velmaro::Service::current().setServiceOrigin(server.url("")));
        openView();
        view->navigationDelegate = coordinator;
        ASSERT_TRUE(loads("/"));
    }

    // The page goes to a file that the server sends as an attachment.
    void offer(const std::string& name, PageServer::Page page = {.body = "bytes"})
    {
        page.headers = {{"Content-Disposition", "attachment" + name},
            {"Content-Type", "application/octet-stream"}};
        server.pages["/file"] = page;
        view->evaluateJavaScript("location.href = '/file'");
    }

    const std::vector<velmaro::DownloadItem>& items() const
    {
        return velmaro::DownloadList::shared().items();
    }

    // Whether the download in that place of the list comes to this end.
    [[nodiscard]] bool ends(std::size_t place, State state)
    {
        const bool hasEnded =
            until([&] { return items().size() > place && items()[place].state != State::running; });
        return hasEnded && items()[place].state == state;
    }

    // The names of all that is in the folder, hidden things too.
    std::set<std::string> names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.insert(entry.path().filename());
        return names;
    }

    std::filesystem::path folder;
    gtk::GtkPlatform platform{
        {.identifier = "example.velmaro.Test", .address = std::nullopt, .geocoder = ""}};
    std::shared_ptr<velmaro::Coordinator> coordinator = std::make_shared<velmaro::Coordinator>(
        std::make_shared<velmaro::WebModel>(), velmaro::PageMessageRules());
};

TEST_F(DownloadTest, savesWholeFilesUnderTheNamesOfTheServerMadeSafe)
{
    struct Case {
        std::string suggestion;
        std::string name;
    };
    const Case cases[] = {
        {R"(; filename="report.csv")", "report.csv"},
        {R"(; filename="report.csv")", "report (2).csv"},
        {R"(; filename="..")", "download"},
        {"", "file"},
        {R"(; filename="../../x/data.csv")", "data.csv"},
        {"; filename*=UTF-8''..%2F..%2Fencoded.csv", "encoded.csv"},
        {R"(; filename=".hidden.csv")", "hidden.csv"},
        {"; filename*=UTF-8''turned_%E2%80%AEvsc.desktop", "turned__vsc.desktop"},
        {"; filename*=UTF-8''line_%0Adata.csv", "line__data.csv"},
        {"; filename*=UTF-8''caf%C3%A9.csv", "caf\u00e9.csv"},
        {"; filename=\"latin_caf\xE9.csv\"", "latin_caf\ufffd.csv"},
        {"; filename=\"" + std::string(400, 'a') + ".csv\"", std::string(236, 'a') + ".csv"},
    };
    std::set<std::string> expected;
    for (std::size_t place = 0; const auto& [suggestion, name] : cases) {
        offer(suggestion);
        ASSERT_TRUE(ends(place, State::finished)) << suggestion;
        EXPECT_EQ(items()[place].file.lastPathComponent(), name) << suggestion;
        EXPECT_EQ(contentsOf(folder / name), "bytes") << suggestion;
        expected.insert(name);
        ++place;
    }
    EXPECT_EQ(names(), expected) << "nothing else is left in the folder";

    view->evaluateJavaScript("const link = document.createElement('a');"
                             "link.href = URL.createObjectURL(new Blob(['made here']));"
                             "link.download = 'made.csv';"
                             "link.click()");
    ASSERT_TRUE(ends(std::size(cases), State::finished));
    EXPECT_EQ(contentsOf(folder / "made.csv"), "made here");
}

TEST_F(DownloadTest, neverReplacesWhatHasComeUnderItsNameMeanwhile)
{
    const std::string whole(std::size_t(64) << 20, 'x');
    const auto path = folder / "velmaro_data.csv";
    const std::function<void()> intrusions[] = {
        [&] { std::ofstream(path) << "the user's"; },
        [&] { std::filesystem::create_symlink("/nowhere", path); },
        [&] { std::filesystem::create_directory(path); },
    };
    for (std::size_t place = 0; const auto& intrude : intrusions) {
        offer(R"(; filename="velmaro_data.csv")", {.body = whole});
        ASSERT_TRUE(until([&] { return !names().empty(); }));
        ASSERT_EQ(items()[place].state, State::running);
        intrude();

        ASSERT_TRUE(ends(place, State::finished));
        EXPECT_TRUE(contentsOf(folder / "velmaro_data (2).csv") == whole);
        EXPECT_EQ(names(), (std::set<std::string>{"velmaro_data.csv", "velmaro_data (2).csv"}));
        EXPECT_EQ(items()[place].file.lastPathComponent(), "velmaro_data (2).csv");
        EXPECT_EQ(contentsOf(path), place == 0 ? "the user's" : "");
        std::filesystem::remove(path);
        std::filesystem::remove(folder / "velmaro_data (2).csv");
        ++place;
    }
}

TEST_F(DownloadTest, leavesNothingBehindWhenItFails)
{
    const std::string half(1 << 20, 'x');
    offer("", {.body = half, .isCutOff = true});
    EXPECT_TRUE(ends(0, State::failed));
    EXPECT_FALSE(items()[0].failureReason.empty());
    EXPECT_TRUE(until([&] { return names().empty(); }));

    offer("", {.body = half, .isStalled = true});
    ASSERT_TRUE(until([&] { return items().size() == 2 && !names().empty(); }));
    EXPECT_FALSE(names().contains("file"));
    closeView();
    EXPECT_TRUE(ends(1, State::failed));
    EXPECT_TRUE(until([&] { return names().empty(); }));
    EXPECT_TRUE(coordinator->downloadDestinations.empty());
}

TEST_F(DownloadTest, removesWhatAProgramThatWasStoppedHardHasLeft)
{
    offer("", {.body = std::string(1 << 20, 'x'), .isStalled = true});
    ASSERT_TRUE(until([&] { return !names().empty(); }));
    const auto running = *names().begin();
    const auto left = folder / ".velmaro-download-abcdef";
    std::filesystem::create_directory(left);
    std::ofstream(left / "unfinished") << "half";
    const auto notOurs = folder / ".velmaro-download-notes.txt";
    std::ofstream(notOurs) << "the user's";

    offer("; filename=report.csv");

    ASSERT_TRUE(ends(1, State::finished));
    EXPECT_EQ(names(), (std::set<std::string>{running, notOurs.filename().string(), "report.csv"}));
}

TEST_F(DownloadTest, goesOnWithoutThePageThatBeganIt)
{
    const std::string whole(std::size_t(64) << 20, 'x');
    offer("", {.body = whole});
    ASSERT_TRUE(until([&] { return !names().empty(); }));
    ASSERT_EQ(items()[0].state, State::running);
    webkit_web_view_terminate_web_process(native());
    ASSERT_TRUE(ends(0, State::finished));
    EXPECT_EQ(contentsOf(folder / "file"), whole);
    EXPECT_TRUE(isReadyWith("Home"));
}

TEST_F(DownloadTest, failsWhereNothingCanBeWritten)
{
    setDownloadsFolder("/proc/downloads");
    offer("");

    EXPECT_TRUE(ends(0, State::failed));
    EXPECT_NE(items()[0].failureReason.find("cannot be written to"), std::string::npos)
        << items()[0].failureReason;
}

} // namespace desktop
