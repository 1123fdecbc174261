// Files that are dragged out of another program's window and dropped on a tab.

#include "harness/Desktop.h"
#include "harness/UserInput.h"
#include "platform/gtk/GtkPlatform.h"
#include "web/Coordinator.h"
#include "webview/WebViewTest.h"

#include <future>
#include <sys/stat.h>

namespace desktop {

namespace {

using platform::Value;
using namespace std::string_literals;

constexpr auto windowTitle = "A tab";

// Notes what the page is given: a SHA-256 of the text's UTF-8, so that texts may be large.
constexpr auto importPage = R"(<title>Import</title><body style="margin: 0; height: 100vh"><script>
    const note = text => webkit.messageHandlers.probe.postMessage(text);
    async function impLoadTextFromNative(name, text) {
        const digest = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(text));
        note(name + ' ' + Array.from(new Uint8Array(digest),
            byte => byte.toString(16).padStart(2, '0')).join(''));
    }
    addEventListener('dragover', event => event.preventDefault());
    addEventListener('drop', event => {
        event.preventDefault();
        note('drop: ' + event.dataTransfer.types[0]);
    });
</script>)";

std::string sha256(const std::string& text)
{
    g_autofree char* sum = g_compute_checksum_for_string(
        G_CHECKSUM_SHA256, text.data(), static_cast<gssize>(text.size()));
    return sum;
}

} // namespace

// A tab on the page for imports, which takes drops of its own too.
class FileDropTest : public WebViewTest {
protected:
    ~FileDropTest() override { closeView(); }

    void SetUp() override
    {
        server.pages["/import"] = {.body = importPage};
        openView();
        window->set_title(windowTitle);
        const auto droppable = std::make_shared<velmaro::DroppableWebView>(*view);
        droppable->dropRouter = coordinator;
        view->draggingDestination = droppable;
        ASSERT_TRUE(loads("/import", "Import"));
    }

    std::string drop(const std::vector<std::filesystem::path>& files)
    {
        const auto count = probe->messages.size();
        dropInBackground(files);
        EXPECT_TRUE(until([&] { return probe->messages.size() > count; }));
        const auto last = probe->last();
        const auto* text = last.string();
        return text ? *text : "";
    }

    // The other program, and the hand on the mouse, need this one's main loop to run meanwhile.
    void dropInBackground(const std::vector<std::filesystem::path>& files)
    {
        std::optional<DesktopWindow> target;
        ASSERT_TRUE(until([&] { return (target = Desktop::window(windowTitle)).has_value(); }));
        const auto frame = target->frame();
        auto drag = std::async(std::launch::async, UserInput::dragFiles, files,
            Point{frame.x + frame.width / 2, frame.y + frame.height / 2});
        ASSERT_TRUE(until(
            [&] { return drag.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        EXPECT_TRUE(drag.get());
    }

    gtk::GtkPlatform platform{
        {.identifier = "example.velmaro.Test", .address = std::nullopt, .geocoder = ""}};
    std::shared_ptr<velmaro::Coordinator> coordinator = std::make_shared<velmaro::Coordinator>(
        std::make_shared<velmaro::WebModel>(), velmaro::PageMessageRules());
};

TEST_F(FileDropTest, handsTextFilesToThePageUnchanged)
{
    struct Case {
        std::string name;
        std::string contents;
        std::string text;
    };
    const auto odd = "a,\"b\";\\\r\n</script>\u2028\u2029\U0001F697 caf\u00e9"s + '\0' + "\x01\x7f";
    const std::string large(50 << 20, '7');
    const Case cases[] = {
        {"odd \"'<&%41.csv", odd, odd},
        {"latin.CSV", "caf\xe9 \xff", "caf\u00e9 \u00ff"},
        {"large.csv", large, large},
    };
    for (const auto& [name, contents, text] : cases)
        EXPECT_EQ(drop({writeFile(name, contents)}), name + " " + sha256(text));

    EXPECT_EQ(drop({writeFile("first.png", "PNG"), writeFile("second.txt", "2"),
                  writeFile("third.csv", "3")}),
        "second.txt " + sha256("2"));
    EXPECT_EQ(drop({writeFile("picture.png", "PNG")}), "drop: text/uri-list"); // the page's own
}

TEST_F(FileDropTest, isNotHeldUpByWhatIsNoFile)
{
    const auto pipe = writeFile("real.csv", "") + ".pipe.csv";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    dropInBackground({pipe});
    EXPECT_EQ(valueOf("'still there'"), Value("still there"));
    EXPECT_EQ(probe->messages.size(), 1u);
}

} // namespace desktop
