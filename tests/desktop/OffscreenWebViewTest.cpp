// What is made of pages that nobody sees: documents as a PDF reader finds them, and prints.

#include "platform/gtk/webkit/OffscreenWebView.h"
#include "harness/Process.h"
#include "platform/gtk/webkit/LoadLimiter.h"
#include "platform/webkit/WKNavigationDelegate.h"
#include "webview/WebViewTest.h"

#include <gtk/gtkunixprint.h>
#include <regex>

namespace desktop {

namespace {

struct LoadRecorder final : platform::WKNavigationDelegate {
    void didFinishNavigation(platform::WKWebView&) override { event = "finished"; }
    void didFailNavigation(platform::WKWebView&, const platform::NSError&) override
    {
        event = "broke off";
    }
    void didFailProvisionalNavigation(platform::WKWebView&, const platform::NSError&) override
    {
        event = "failed";
    }

    std::string event; // the last one
};

// What the program writes, with each run of blanks as one.
std::string outputOf(const std::vector<std::string>& command)
{
    Process process(command);
    EXPECT_EQ(process.waitForExit(), 0) << command.front() << ": " << process.errors();
    return std::regex_replace(process.output(), std::regex("\\s+"), " ");
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

class OffscreenWebViewTest : public WebViewTest {
protected:
    std::shared_ptr<gtk::OffscreenWebView> open(const std::string& html)
    {
        auto page = std::make_shared<gtk::OffscreenWebView>(
            *engine, platform::NSSize{816, 1056}, platform::WKWebViewConfiguration());
        page->navigationDelegate = loads_;
        loads_->event.clear();
        page->loadHTMLString(html, platform::URL::fromString(server.url("/")));
        return page;
    }

    [[nodiscard]] bool ends(const std::string& event)
    {
        return until([&] { return !loads_->event.empty(); }) && loads_->event == event;
    }

    // Where the document of the loaded page is; fails the test when there is none.
    std::string documentOf(gtk::OffscreenWebView& page)
    {
        std::optional<gtk::PageDocument::Result> result;
        page.createPDF({}, [&](const auto& answer) { result = answer; });
        EXPECT_TRUE(until([&] { return result.has_value(); }));
        const auto* bytes = result ? std::get_if<platform::Data>(&*result) : nullptr;
        EXPECT_TRUE(bytes) << std::get<platform::NSError>(*result).localizedDescription;
        const std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
        return writeFile("document.pdf", std::string(text));
    }

    std::string documentOf(const std::string& html)
    {
        const auto page = open(html);
        EXPECT_TRUE(ends("finished"));
        return documentOf(*page);
    }

    const std::shared_ptr<LoadRecorder> loads_ = std::make_shared<LoadRecorder>();
};

TEST_F(OffscreenWebViewTest, makesOneSheetOfWhatAScreenWouldShow)
{
    struct Case {
        const char* name;
        const char* html;
        const char* size;
        const char* text;
    };
    const Case cases[] = {
        {"breaks break nothing",
            "<!doctype html><body style='margin:0'><style>p{height:700px;break-after:page;"
            "page-break-inside:avoid}</style><p>one</p><p>two</p><p>three</p>",
            "612 x 1623 pts", "one two three"},
        {"also where the page forbids styles of others",
            "<!doctype html><meta http-equiv=Content-Security-Policy content=\"style-src "
            "'sha256-none'; script-src 'none'\"><p style='break-after:page'>one</p><p>two",
            "612 x 792 pts", "one two"},
        {"paper has no styles of its own",
            "<!doctype html><style>@page{margin:3cm;size:A5 landscape}@media print{b{display:none}"
            "@media screen{u{display:none}}}@supports(display:block){@media only print{b{display:"
            "none}}}@media screen and (max-width:815px){i{display:none}}</style><style "
            "media=print>i{display:none}</style><b>bold</b> <i>italic</i> <u>under</u>",
            "612 x 792 pts", "bold italic under"},
        {"scripts see the width",
            "<!doctype html><p id=p><script>p.textContent = innerWidth + ' ' + typeof webkit"
            "</script>",
            "612 x 792 pts", "816"},
    };
    for (const auto& [name, html, size, text] : cases) {
        SCOPED_TRACE(name);
        const auto document = documentOf(html);
        const auto facts = outputOf({"pdfinfo", document});
        EXPECT_TRUE(contains(facts, "Pages: 1 ")) << facts;
        EXPECT_TRUE(contains(facts, std::string("Page size: ") + size)) << facts;
        const auto found = outputOf({"pdftotext", document, "-"});
        EXPECT_TRUE(contains(found, text)) << found;
    }
}

TEST_F(OffscreenWebViewTest, linksLeadWhereTheyDoOnThePage)
{
    const auto document = documentOf(
        "<!doctype html><a href='/help?a=1#b'>One</a> <a href='mailto:a@b.example'>Two</a>"
        "<a href='#end'>Three</a> <a href='javascript:alert(1)'>Four</a> <p id=end>End");
    const auto urls = outputOf({"pdfinfo", "-url", document});
    EXPECT_TRUE(contains(urls, server.url("/help?a=1#b"))) << urls;
    EXPECT_TRUE(contains(urls, "mailto:a@b.example")) << urls;
    EXPECT_FALSE(contains(urls, "javascript")) << urls;
    EXPECT_FALSE(contains(urls, "#end")) << urls;
}

TEST_F(OffscreenWebViewTest, tellsHowALoadEnds)
{
    server.pages["/silent"] = {.body = "", .isSilent = true};
    auto page = open("<img src='/missing.png'><script src='https://nowhere.invalid/'></script>");
    EXPECT_TRUE(ends("finished")) << "what a page lacks is no failure of the page";

    page = open("<title>Waits</title><img src='/silent'>");
    ASSERT_TRUE(until([&] { return server.requestCount("/silent") == 1; }));
    ASSERT_TRUE(until([&] { return page->title() == "Waits"; })) << "told after the request";
    EXPECT_EQ(loads_->event, "");
    webkit_web_view_terminate_web_process(page->native());
    EXPECT_TRUE(ends("broke off"));

    loads_->event.clear();
    page->load({.url = *platform::URL::fromString(server.url("/", "nowhere.invalid"))});
    EXPECT_TRUE(ends("failed"));
}

TEST_F(OffscreenWebViewTest, aProcessThatDiesUnderADocumentEndsItWithAReason)
{
    const auto page = open("<p>One");
    ASSERT_TRUE(ends("finished"));
    std::optional<gtk::PageDocument::Result> result;
    page->createPDF({}, [&](const auto& answer) { result = answer; });
    const auto print = page->printOperation({});
    std::optional<bool> isPrinted;
    print->runOperation([&](auto&, bool success) { isPrinted = success; });

    webkit_web_view_terminate_web_process(page->native());

    EXPECT_EQ(isPrinted, false) << "the panel is still there";

    EXPECT_TRUE(until([&] { return result.has_value(); }));
    EXPECT_TRUE(result && std::holds_alternative<platform::NSError>(*result));
    EXPECT_EQ(loads_->event, "finished");
}

TEST_F(OffscreenWebViewTest, printsOnlyWhatThePanelSays)
{
    engine->printChoice()->printer = "Print to File"; // as in the panel before
    const auto target = std::filesystem::path(writeFile("a-b.pdf", "")); // from the job's title
    std::filesystem::current_path(target.parent_path());
    std::filesystem::remove(target);
    for (const auto response : {GTK_RESPONSE_CANCEL, GTK_RESPONSE_OK}) {
        const bool success = response == GTK_RESPONSE_OK;
        const auto page = open("<!doctype html><p style='break-after:page'>one</p><p>two</p>");
        ASSERT_TRUE(ends("finished"));
        const auto operation = page->printOperation({});
        operation->jobTitle = "a/b";
        std::optional<bool> ended;
        operation->runOperation([&](auto&, bool isPrinted) { ended = isPrinted; });

        GtkPrintUnixDialog* panel = nullptr;
        for (auto* window : Gtk::Window::list_toplevels()) {
            if (GTK_IS_PRINT_UNIX_DIALOG(window->gobj()) && window->get_visible())
                panel = GTK_PRINT_UNIX_DIALOG(window->gobj());
        }
        ASSERT_TRUE(panel);
        ASSERT_TRUE(until([&] { return gtk_print_unix_dialog_get_selected_printer(panel); }));
        gtk_dialog_response(GTK_DIALOG(panel), response);

        ASSERT_TRUE(until([&] { return ended.has_value(); }));
        EXPECT_EQ(ended, success);
        EXPECT_EQ(std::filesystem::exists(target), success);
    }
    EXPECT_TRUE(contains(outputOf({"pdfinfo", target}), "Pages: 2 "));
    EXPECT_TRUE(contains(outputOf({"pdftotext", target, "-"}), "one two"));
}

TEST(LoadLimiter, turnsAreTakenInOrderAndEndWhenDroppedOrAfterTooLong)
{
    const auto turns = std::make_shared<gtk::LoadLimiter>(2, 0.05);
    std::string begun;
    const auto ask = [&](auto& limiter, char name) {
        return limiter->ask([&begun, name] { begun += name; });
    };
    auto a = ask(turns, 'a'), b = ask(turns, 'b'), c = ask(turns, 'c'), d = ask(turns, 'd');
    c.reset(); // gives up before it has begun
    EXPECT_TRUE(until([&] { return begun == "abd"; })) << "a and b take too long";

    const auto patient = std::make_shared<gtk::LoadLimiter>(1, 3600);
    auto e = ask(patient, 'e'), f = ask(patient, 'f');
    ASSERT_TRUE(until([&] { return begun == "abde"; }));
    e.reset();
    EXPECT_TRUE(until([&] { return begun == "abdef"; }));
}

} // namespace desktop
