#include "platform/gtk/webkit/PageDocument.h"

#include "platform/gtk/foundation/DurableFile.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace gtk {

namespace {

constexpr auto scriptWorld = "velmaro"; // where nothing that the page has replaced is seen
constexpr double pointsPerPixel = 0.75;

// The engine prints with the styles for paper, breaks pages where they say so and lays out narrower
// than the screen. This freezes what the media queries of the page say on the screen, whatever the
// medium, and takes the breaks and margins away. What comes out is the size of all that there is.
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
style.textContent = `@page { margin: 0 !important }
    @media print { html { min-width: ${width}px !important } }
    * { break-before: auto !important; break-after: auto !important; break-inside: auto !important;
        page-break-before: auto !important; page-break-after: auto !important;
        page-break-inside: auto !important }`;
root.append(style);
return [width, Math.max(root.scrollHeight, document.body?.scrollHeight ?? 0)];
)";

double numberAt(JSCValue* list, guint index)
{
    const ObjectPointer<JSCValue> value(jsc_value_object_get_property_at_index(list, index));
    return jsc_value_to_double(value.get());
}

ObjectPointer<GtkPageSetup> singleSheet(double width, double height)
{
    ObjectPointer<GtkPageSetup> setup(gtk_page_setup_new());
    auto* paper = gtk_paper_size_new_custom("velmaro-page", "Page", width * pointsPerPixel,
        std::ceil(height * pointsPerPixel), GTK_UNIT_POINTS);
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
    const auto file = DurableFile::read(path);
    if (!file.exists || !file.failure.empty())
        return platform::NSError{file.failure};
    const auto* bytes = reinterpret_cast<const std::byte*>(file.text.data());
    return platform::Data(bytes, bytes + file.text.size());
}

} // namespace

PageDocument::PageDocument(WebKitWebView* view, double width)
    : view_(retain(view))
    , width_(width)
{
}

void PageDocument::start(std::function<void(const Result&)> completion)
{
    completion_ = std::move(completion);
    GVariantBuilder arguments;
    g_variant_builder_init(&arguments, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&arguments, "{sv}", "minimumWidth", g_variant_new_double(width_));

    const auto didRun = [](GObject* view, GAsyncResult* result, gpointer data) {
        const std::unique_ptr<std::weak_ptr<PageDocument>> weakSelf(
            static_cast<std::weak_ptr<PageDocument>*>(data));
        g_autoptr(GError) error = nullptr;
        const ObjectPointer<JSCValue> size(webkit_web_view_call_async_javascript_function_finish(
            WEBKIT_WEB_VIEW(view), result, &error));
        const auto self = weakSelf->lock();
        if (!self)
            return;
        if (size)
            self->measured(numberAt(size.get(), 0), numberAt(size.get(), 1));
        else
            self->fail(error->message);
    };
    webkit_web_view_call_async_javascript_function(view_.get(), script, -1,
        g_variant_builder_end(&arguments), scriptWorld, nullptr, nullptr, didRun,
        new std::weak_ptr(weak_from_this()));
}

void PageDocument::fail(const std::string& reason)
{
    finish(platform::NSError{reason});
}

void PageDocument::measured(double width, double height)
{
    const ObjectPointer<GtkPrintSettings> settings(gtk_print_settings_new());
    print_ = std::make_unique<PrintToFile>(
        view_.get(), settings.get(), singleSheet(width, height).get());
    print_->start(
        [this](const auto& error) { finish(error ? Result(*error) : contents(print_->path())); });
}

void PageDocument::finish(const Result& result)
{
    if (const auto completion = std::exchange(completion_, nullptr))
        completion(result);
}

} // namespace gtk
