#include "platform/gtk/printing/PageDocument.h"

#include "platform/foundation/JSONSerialization.h"
#include "platform/gtk/foundation/AsyncCallback.h"
#include "platform/gtk/foundation/AtomicFile.h"
#include "platform/gtk/printing/DocumentLinks.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace gtk {

namespace {

constexpr auto scriptWorld = "velmaro"; // where the page cannot have replaced anything
constexpr double pointsPerPixel = 0.75;

// The engine prints with the styles for paper, breaks pages where they say so and lays out narrower
// than the screen. This freezes what the media queries of the page say on the screen, whatever the
// medium, and takes the breaks and margins away. Its result is the size of the whole page, and the
// places of its links, which the engine leaves out.
constexpr auto script = R"(
const freeze = (media) => {
    if (media.length) media.mediaText = matchMedia(media.mediaText).matches ? 'all' : 'not all';
};
const freezeRules = (owner) => {
    let rules = [];
    try { rules = owner.cssRules ?? []; } catch { } // those of other origins cannot be read
    for (const rule of rules) {
        if (rule.media) freeze(rule.media);
        if (rule.styleSheet) freezeRules(rule.styleSheet);
        freezeRules(rule);
    }
};
const root = document.documentElement;
for (const sheet of [...document.styleSheets, ...document.adoptedStyleSheets]) {
    freeze(sheet.media);
    freezeRules(sheet);
}
const width = Math.max(minimumWidth, root.scrollWidth);
const style = document.createElement('style');
style.textContent = `@page { margin: 0 !important } html { min-width: ${width}px !important }
    * { break-before: auto !important; break-after: auto !important; break-inside: auto !important;
        page-break-before: auto !important; page-break-after: auto !important;
        page-break-inside: auto !important }`;
root.append(style);

const top = (element) => element.getBoundingClientRect().top + scrollY;
const target = (link) => {
    const here = link.hash && link.href.startsWith(document.baseURI.replace(/#.*/, '') + '#');
    const element = here && document.getElementById(decodeURIComponent(link.hash.slice(1)));
    return element ? top(element) : null;
};
const places = (link) => [...link.getClientRects()].map((area) => ({
    x: area.left + scrollX, y: area.top + scrollY, width: area.width, height: area.height,
    address: link.href, target: target(link),
}));
const links = [...document.querySelectorAll('a[href]')]
    .filter((link) => link.protocol !== 'javascript:').flatMap(places);
const height = Math.max(root.scrollHeight, document.body?.scrollHeight ?? 0);
return JSON.stringify({ width, height, links });
)";

double number(const platform::Value& measures, const char* name)
{
    const auto* member = measures.member(name);
    const auto* value = member ? member->number() : nullptr;
    return value ? *value * pointsPerPixel : 0;
}

std::vector<DocumentLink> linksOf(const platform::Value& measures)
{
    std::vector<DocumentLink> links;
    const auto* member = measures.member("links");
    const auto* list = member ? member->array() : nullptr;
    for (const auto& link : list ? *list : platform::Value::Array()) {
        const auto* address = link.member("address");
        const bool leadsInside = link.member("target") && link.member("target")->number();
        links.push_back({
            .area = {{number(link, "x"), number(link, "y")},
                {number(link, "width"), number(link, "height")}},
            .address = address && address->string() ? *address->string() : "",
            .target = leadsInside ? std::optional(number(link, "target")) : std::nullopt,
        });
    }
    return links;
}

ObjectPointer<GtkPageSetup> singleSheet(double width, double height)
{
    ObjectPointer<GtkPageSetup> setup(gtk_page_setup_new());
    auto* paper = gtk_paper_size_new_custom(
        "velmaro-page", "Page", width, std::ceil(height), GTK_UNIT_POINTS);
    gtk_page_setup_set_paper_size(setup.get(), paper);
    gtk_paper_size_free(paper);
    gtk_page_setup_set_top_margin(setup.get(), 0, GTK_UNIT_POINTS);
    gtk_page_setup_set_bottom_margin(setup.get(), 0, GTK_UNIT_POINTS);
    gtk_page_setup_set_left_margin(setup.get(), 0, GTK_UNIT_POINTS);
    gtk_page_setup_set_right_margin(setup.get(), 0, GTK_UNIT_POINTS);
    return setup;
}

PageDocument::Result contents(const std::string& path)
{
    const auto file = AtomicFile::read(path);
    if (!file.exists || !file.failure.empty())
        return platform::NSError{file.failure};
    const auto* bytes = reinterpret_cast<const std::byte*>(file.text.data());
    return platform::Data(bytes, bytes + file.text.size());
}

} // namespace

PageDocument::PageDocument(WebKitWebView* view)
    : view_(retain(view))
{
}

void PageDocument::start(std::function<void(const Result&)> completion)
{
    completion_ = std::move(completion);
    GVariantBuilder arguments;
    g_variant_builder_init(&arguments, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&arguments, "{sv}", "minimumWidth",
        g_variant_new_double(gtk_widget_get_width(GTK_WIDGET(view_.get()))));

    const auto didRun = [this](GObject* view, GAsyncResult* result) {
        g_autoptr(GError) error = nullptr;
        const ObjectPointer<JSCValue> measures(
            webkit_web_view_call_async_javascript_function_finish(
                WEBKIT_WEB_VIEW(view), result, &error));
        if (!measures)
            return fail(error->message);
        g_autofree char* text = jsc_value_to_string(measures.get());
        print(platform::JSONSerialization::decode(text).value_or(platform::Value()));
    };
    const auto callback = asyncCallback(lifetime_.guard(didRun));
    webkit_web_view_call_async_javascript_function(view_.get(), script, -1,
        g_variant_builder_end(&arguments), scriptWorld, nullptr, nullptr, callback.function,
        callback.data);
}

void PageDocument::fail(const std::string& reason)
{
    finish(platform::NSError{reason});
}

void PageDocument::print(const platform::Value& measures)
{
    if (!measures.object())
        return fail("The size of the page cannot be told.");
    const ObjectPointer<GtkPrintSettings> settings(gtk_print_settings_new());
    const auto sheet = singleSheet(number(measures, "width"), number(measures, "height"));
    print_ = std::make_unique<PrintToFile>(view_.get(), settings.get(), sheet.get());
    print_->start([this, links = linksOf(measures)](const auto& error) {
        auto result = error ? Result(*error) : contents(print_->path());
        if (auto* document = std::get_if<platform::Data>(&result))
            *document = withLinks(std::move(*document), links);
        finish(result);
    });
}

void PageDocument::finish(const Result& result)
{
    if (const auto completion = std::exchange(completion_, nullptr))
        completion(result);
}

} // namespace gtk
