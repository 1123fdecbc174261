// Nothing of a host is left on the disk when its data were removed.

#include "platform/gtk/webkit/WebsiteData.h"

#include "harness/Files.h"
#include "webview/WebViewTest.h"

#include <set>

namespace desktop {

namespace {

constexpr auto secret = "s3cr3t-of-the-page";

// Puts something into every kind of store there is, and says when it is there.
constexpr auto storingPage = R"(<title>Storing</title><script>
const secret = 's3cr3t-of-the-page';
const stored = request => new Promise(done => request.onsuccess = () => done(request.result));
(async () => {
    localStorage.setItem('key', secret);
    sessionStorage.setItem('key', secret);
    const opening = indexedDB.open('records');
    opening.onupgradeneeded = () => opening.result.createObjectStore('store');
    const database = await stored(opening);
    const transaction = database.transaction('store', 'readwrite');
    transaction.objectStore('store').put(secret, 'key');
    await new Promise(done => transaction.oncomplete = done);
    await (await caches.open('responses')).put('/kept', new Response(secret));
    await navigator.serviceWorker.register('/worker.js');
    await navigator.serviceWorker.ready;
    document.title = 'Stored';
})().catch(error => document.title = String(error));
</script>)";

} // namespace

class WebsiteDataTest : public WebViewTest {
protected:
    void SetUp() override
    {
        server.pages["/"].headers = {
            {"Set-Cookie", std::string("key=") + secret + "; Max-Age=100000; Secure"},
            {"Strict-Transport-Security", "max-age=100000"},
            {"Cache-Control", "max-age=100000"},
        };
        server.pages["/"].body = storingPage;
        server.pages["/worker.js"] = {
            .body = "// s3cr3t-of-the-page", .headers = {{"Content-Type", "text/javascript"}}};
        openView();
        ASSERT_TRUE(loads("/", "Stored")) << view->title();
        ASSERT_TRUE(until([this] { return stores() == allStores; }));
    }

    // The files that tell of the page or its host, each by the part of its path that names a store.
    std::set<std::string> stores() const
    {
        std::set<std::string> found;
        for (const char* part : {"data", "cache"}) {
            for (const auto& file : filesBelow(folder() / part)) {
                auto contents = contentsOf(file);
                std::erase(contents, '\0'); // some stores have texts in UTF-16
                for (const auto* trace : {secret, "localhost"}) {
                    if (contents.find(trace) != std::string::npos)
                        found.insert(storeOf(file));
                }
            }
        }
        return found;
    }

    static std::string storeOf(const std::filesystem::path& path)
    {
        for (const auto& name : allStores) {
            if (path.string().find(name) != std::string::npos)
                return name;
        }
        return path;
    }

    void removeAll()
    {
        ++pending_;
        const auto session = engine->session(platform::WKWebsiteDataStore::defaultDataStore);
        gtk::removeWebsiteData(session.get(), [this] { --pending_; });
    }

    [[nodiscard]] bool isRemoved()
    {
        return until([this] { return pending_ == 0; });
    }

    static inline const std::set<std::string> allStores = {"cookies.sqlite", "LocalStorage",
        "IndexedDB", "CacheStorage", "serviceworkers", "hsts-storage.sqlite", "WebKitCache",
        "/origin"};

private:
    int pending_ = 0;
};

TEST_F(WebsiteDataTest, allOfItGoesWhileThePageIsOpenAndTheNamesOfHostsAtTheNextStart)
{
    removeAll();
    removeAll();
    ASSERT_TRUE(isRemoved());
    EXPECT_EQ(stores(), std::set<std::string>{"/origin"}); // the name of a host with an open page
    EXPECT_EQ(valueOf("localStorage.length + sessionStorage.length"), 0.0);
    EXPECT_EQ(valueOf("document.cookie"), "");

    closeView();
    startEngine();
    engine->prepare();
    EXPECT_TRUE(until([this] { return stores().empty(); }));
}

TEST_F(WebsiteDataTest, whatTheEngineWritesLateGoesToo)
{
    server.pages["/late"] = {.body = "<title>Late</title>s3cr3t-of-the-page",
        .headers = {{"Cache-Control", "max-age=100000"}}};
    ASSERT_TRUE(loads("/late", "Late"));
    removeAll();
    closeView();
    ASSERT_TRUE(isRemoved());
    ASSERT_TRUE(until([this] { return stores().contains("WebKitCache"); }));
    EXPECT_TRUE(until([this] { return !stores().contains("WebKitCache"); }));
}

} // namespace desktop
