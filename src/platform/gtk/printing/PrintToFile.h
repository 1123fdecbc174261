#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/foundation/NSError.h"
#include "platform/gtk/foundation/SignalHandlers.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <webkit/webkit.h>

namespace gtk {

// A folder for the user's eyes alone that goes, with all that is in it, when this does.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Empty when there is no room for one.
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// One print of a web view's page into a PDF file of its own. The engine prints to printers only, so
// it goes to the desktop's printer that writes files.
class PrintToFile {
public:
    // `settings` and `setup` are as for a printer, and are left as they are.
    PrintToFile(WebKitWebView* view, GtkPrintSettings* settings, GtkPageSetup* setup);
    ~PrintToFile();

    // Calls `completion` once, later, unless this goes before: with the reason when there is no
    // file. It may drop this.
    void start(std::function<void(const std::optional<platform::NSError>&)> completion);

    // Ends it now, and tells why.
    void fail(const std::string& reason);

    // Where the document is. It goes with this.
    std::string path() const { return folder_.path() / "document.pdf"; }

private:
    void print(const std::string& printer);
    void finish(const std::optional<platform::NSError>& error);
    void finished();

    static void operationFailed(WebKitPrintOperation*, GError* error, PrintToFile* self);

    const TemporaryFolder folder_;
    const ObjectPointer<WebKitWebView> view_; // the engine stops half-way without it
    const ObjectPointer<WebKitPrintOperation> operation_;
    const ObjectPointer<GtkPrintSettings> settings_;
    std::function<void(const std::optional<platform::NSError>&)> completion_;
    std::string failure_;
    SignalHandlers signals_;
    platform::Lifetime lifetime_; // the search for the printer may outlast this
};

} // namespace gtk
