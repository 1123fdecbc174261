#include "platform/gtk/printing/PrintToFile.h"

#include <cerrno>
#include <glib/gstdio.h>
#include <gtk/gtkunixprint.h>
#include <utility>

namespace gtk {

namespace {

// The printer that writes files is called differently in every language.
gboolean isFilePrinter(GtkPrinter* printer)
{
    return gtk_printer_is_virtual(printer) && gtk_printer_accepts_pdf(printer);
}

struct Search {
    std::function<void(const std::string& name)> completion; // with "" where there is no printer
    std::string name;
};

gboolean lookAt(GtkPrinter* printer, gpointer data)
{
    if (!isFilePrinter(printer))
        return FALSE;
    static_cast<Search*>(data)->name = gtk_printer_get_name(printer);
    return TRUE;
}

void endSearch(gpointer data)
{
    const std::unique_ptr<Search> search(static_cast<Search*>(data));
    search->completion(search->name);
}

void removeRecent(GtkRecentManager* documents, gpointer address)
{
    if (gtk_recent_manager_remove_item(documents, static_cast<char*>(address), nullptr))
        g_signal_handlers_disconnect_matched(
            documents, G_SIGNAL_MATCH_DATA, 0, 0, nullptr, nullptr, address);
}

// Whatever is printed to a file is remembered as a document of the user's, some time later.
void keepFromRecentDocuments(const std::string& path)
{
    char* address = g_filename_to_uri(path.c_str(), nullptr, nullptr);
    g_signal_connect_data(
        gtk_recent_manager_get_default(), "changed", G_CALLBACK(removeRecent), address,
        [](gpointer data, GClosure*) { g_free(data); }, GConnectFlags());
}

bool hasContent(const std::string& path)
{
    GStatBuf status;
    return g_stat(path.c_str(), &status) == 0 && status.st_size > 0;
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    g_autofree char* path = g_dir_make_tmp("velmaro-XXXXXX", nullptr);
    if (path)
        path_ = path;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code error;
    if (!path_.empty())
        std::filesystem::remove_all(path_, error);
}

PrintToFile::PrintToFile(WebKitWebView* view, GtkPrintSettings* settings, GtkPageSetup* setup)
    : view_(retain(view))
    , operation_(webkit_print_operation_new(view))
    , settings_(gtk_print_settings_copy(settings))
{
    webkit_print_operation_set_page_setup(operation_.get(), setup);
    signals_.connect(operation_.get(), "failed", G_CALLBACK(&PrintToFile::operationFailed), this);
    signals_.connect(operation_.get(), "finished",
        G_CALLBACK(+[](WebKitPrintOperation*, PrintToFile* self) { self->finished(); }), this);
}

PrintToFile::~PrintToFile() = default;

void PrintToFile::start(std::function<void(const std::optional<platform::NSError>&)> completion)
{
    completion_ = std::move(completion);
    const auto useResult = [this](const std::string& name) { print(name); };
    gtk_enumerate_printers(lookAt, new Search{lifetime_.guard(useResult), {}}, endSearch, FALSE);
}

void PrintToFile::fail(const std::string& reason)
{
    finish(platform::NSError{reason});
}

void PrintToFile::print(const std::string& printer)
{
    if (printer.empty())
        return fail("The desktop has no printer that writes files.");
    g_autoptr(GError) error = nullptr;
    g_autofree char* address = g_filename_to_uri(path().c_str(), nullptr, &error);
    if (!address)
        return fail(g_strerror(ENOSPC));
    gtk_print_settings_set_printer(settings_.get(), printer.c_str());
    gtk_print_settings_set(settings_.get(), GTK_PRINT_SETTINGS_OUTPUT_FILE_FORMAT, "pdf");
    gtk_print_settings_set(settings_.get(), GTK_PRINT_SETTINGS_OUTPUT_URI, address);
    webkit_print_operation_set_print_settings(operation_.get(), settings_.get());
    webkit_print_operation_print(operation_.get());
}

// The end follows.
void PrintToFile::operationFailed(WebKitPrintOperation*, GError* error, PrintToFile* self)
{
    self->failure_ = error->message;
}

void PrintToFile::finished()
{
    if (!failure_.empty())
        fail(failure_);
    else if (!hasContent(path()))
        fail("The page could not be printed.");
    else {
        keepFromRecentDocuments(path());
        finish(std::nullopt);
    }
}

void PrintToFile::finish(const std::optional<platform::NSError>& error)
{
    if (const auto completion = std::exchange(completion_, nullptr))
        completion(error);
}

} // namespace gtk
