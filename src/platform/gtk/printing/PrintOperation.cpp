#include "platform/gtk/printing/PrintOperation.h"

#include "platform/gtk/ui/NativeWindow.h"

#include <algorithm>
#include <glibmm/main.h>
#include <utility>

namespace gtk {

namespace {

// What the engine does to the pages itself, whatever the printer can do.
constexpr auto engineCapabilities = static_cast<GtkPrintCapabilities>(GTK_PRINT_CAPABILITY_PAGE_SET
    | GTK_PRINT_CAPABILITY_COPIES | GTK_PRINT_CAPABILITY_COLLATE | GTK_PRINT_CAPABILITY_REVERSE
    | GTK_PRINT_CAPABILITY_GENERATE_PDF);

ObjectPointer<GtkPrintSettings> initialSettings(std::string title, const std::string& printer)
{
    std::ranges::replace(title, '/', '-');
    ObjectPointer<GtkPrintSettings> settings(gtk_print_settings_new());
    gtk_print_settings_set(settings.get(), GTK_PRINT_SETTINGS_OUTPUT_BASENAME, title.c_str());
    if (!printer.empty())
        gtk_print_settings_set_printer(settings.get(), printer.c_str());
    return settings;
}

// The file already holds the chosen pages, as often and in the order in which they are wanted.
ObjectPointer<GtkPrintSettings> settingsForFinishedPages(GtkPrintSettings* chosen)
{
    ObjectPointer<GtkPrintSettings> settings(gtk_print_settings_copy(chosen));
    gtk_print_settings_set_n_copies(settings.get(), 1);
    gtk_print_settings_set_collate(settings.get(), FALSE);
    gtk_print_settings_set_reverse(settings.get(), FALSE);
    gtk_print_settings_set_print_pages(settings.get(), GTK_PRINT_PAGES_ALL);
    gtk_print_settings_set_page_set(settings.get(), GTK_PAGE_SET_ALL);
    return settings;
}

} // namespace

PrintOperation::PrintOperation(WebKitWebView* view, const platform::NSPrintInfo& printInfo,
    std::shared_ptr<PrintChoice> choice)
    : NSPrintOperation(printInfo)
    , view_(retain(view))
    , choice_(std::move(choice))
{
}

PrintOperation::~PrintOperation()
{
    closePanel();
}

void PrintOperation::runModalFor(
    const std::shared_ptr<platform::NSWindow>& window, Completion completion)
{
    completion_ = std::move(completion);
    auto* parent = window ? nativeWindow(*window) : nullptr;
    showPanel(parent ? parent->gobj() : nullptr);
}

void PrintOperation::runOperation(Completion completion)
{
    completion_ = std::move(completion);
    showPanel(nullptr);
}

void PrintOperation::showPanel(GtkWindow* parent)
{
    panel_ = retain(GTK_PRINT_UNIX_DIALOG(gtk_print_unix_dialog_new("Print", parent)));
    gtk_print_unix_dialog_set_manual_capabilities(panel_.get(), engineCapabilities);
    gtk_print_unix_dialog_set_embed_page_setup(panel_.get(), TRUE);
    gtk_print_unix_dialog_set_settings(
        panel_.get(), initialSettings(jobTitle, choice_->printer).get());
    const ObjectPointer<GtkPageSetup> defaultSetup(gtk_page_setup_new());
    auto* setup = choice_->setup ? choice_->setup.get() : defaultSetup.get();
    gtk_print_unix_dialog_set_page_setup(panel_.get(), withMargins(setup).get());
    gtk_window_set_modal(GTK_WINDOW(panel_.get()), TRUE);

    panelSignals_ = std::make_unique<SignalHandlers>();
    panelSignals_->connect(panel_.get(), "response", G_CALLBACK(&PrintOperation::answered), this);
    if (parent)
        panelSignals_->connect(parent, "hide",
            G_CALLBACK(+[](GtkWidget*, PrintOperation* self) { self->end(false); }), this);
    // The page has gone, so there is nothing to print.
    panelSignals_->connect(view_.get(), "web-process-terminated",
        G_CALLBACK(+[](WebKitWebView*, WebKitWebProcessTerminationReason, PrintOperation* self) {
            self->end(false);
        }),
        this);
    gtk_window_present(GTK_WINDOW(panel_.get()));
}

void PrintOperation::closePanel()
{
    panelSignals_.reset();
    if (!panel_)
        return;
    gtk_widget_set_visible(GTK_WIDGET(panel_.get()), FALSE);
    // The toolkit still uses the panel when it was closed with Escape.
    Glib::signal_idle().connect_once(
        [panel = std::shared_ptr<GtkPrintUnixDialog>(std::move(panel_))] {
            gtk_window_destroy(GTK_WINDOW(panel.get()));
        });
}

void PrintOperation::answered(GtkDialog*, int response, PrintOperation* self)
{
    auto* printer = gtk_print_unix_dialog_get_selected_printer(self->panel_.get());
    if (response != GTK_RESPONSE_OK || !printer)
        return self->end(false);
    self->printer_ = retain(printer);
    self->settings_.reset(gtk_print_unix_dialog_get_settings(self->panel_.get()));
    self->setup_ = self->withMargins(gtk_print_unix_dialog_get_page_setup(self->panel_.get()));
    self->choice_->printer = gtk_printer_get_name(printer);
    self->choice_->setup.reset(gtk_page_setup_copy(self->setup_.get()));
    self->closePanel();
    self->print();
}

void PrintOperation::print()
{
    pages_ = std::make_unique<PrintToFile>(view_.get(), settings_.get(), setup_.get());
    pages_->start([this](const auto& error) {
        if (error)
            end(false);
        else
            send();
    });
}

void PrintOperation::send()
{
    const auto settings = settingsForFinishedPages(settings_.get());
    const ObjectPointer<GtkPrintJob> job(
        gtk_print_job_new(jobTitle.c_str(), printer_.get(), settings.get(), setup_.get()));
    if (!gtk_print_job_set_source_file(job.get(), pages_->path().c_str(), nullptr))
        return end(false);

    const auto didSend = [](GtkPrintJob*, gpointer data, const GError* error) {
        if (const auto self = static_cast<std::weak_ptr<PrintOperation>*>(data)->lock())
            self->end(!error);
    };
    const auto forget = [](gpointer data) {
        delete static_cast<std::weak_ptr<PrintOperation>*>(data);
    };
    gtk_print_job_send(job.get(), didSend, new std::weak_ptr(weak_from_this()), forget);
}

void PrintOperation::end(bool success)
{
    const auto self = shared_from_this(); // the completion may drop this
    closePanel();
    hasEnded_ = true;
    if (const auto completion = std::exchange(completion_, nullptr))
        completion(*this, success);
}

ObjectPointer<GtkPageSetup> PrintOperation::withMargins(GtkPageSetup* setup) const
{
    ObjectPointer<GtkPageSetup> copy(gtk_page_setup_copy(setup));
    gtk_page_setup_set_top_margin(copy.get(), printInfo.topMargin, GTK_UNIT_POINTS);
    gtk_page_setup_set_bottom_margin(copy.get(), printInfo.bottomMargin, GTK_UNIT_POINTS);
    gtk_page_setup_set_left_margin(copy.get(), printInfo.leftMargin, GTK_UNIT_POINTS);
    gtk_page_setup_set_right_margin(copy.get(), printInfo.rightMargin, GTK_UNIT_POINTS);
    return copy;
}

} // namespace gtk
