#pragma once

#include "platform/appkit/NSPrintOperation.h"
#include "platform/gtk/printing/PrintToFile.h"

#include <gtk/gtkunixprint.h>

namespace gtk {

// What the user chose in the last print panel of this run, for the next one.
struct PrintChoice {
    std::string printer; // empty before the first choice
    ObjectPointer<GtkPageSetup> setup; // null until then
};

// A print of a web view's page. The engine writes the pages into a file, as the user wants them,
// and the file goes to the printer: the engine's own jobs have no title, and its panel stops the
// main loop.
class PrintOperation final : public platform::NSPrintOperation,
                             public std::enable_shared_from_this<PrintOperation> {
public:
    PrintOperation(WebKitWebView* view, const platform::NSPrintInfo& printInfo,
        std::shared_ptr<PrintChoice> choice);
    ~PrintOperation() override;

    void runModalFor(
        const std::shared_ptr<platform::NSWindow>& window, Completion completion) override;
    void runOperation(Completion completion) override;

    bool hasEnded() const { return hasEnded_; }

private:
    void showPanel(GtkWindow* parent);
    void closePanel();
    void print();
    void send();
    void end(bool success);
    ObjectPointer<GtkPageSetup> withMargins(GtkPageSetup* setup) const;

    static void answered(GtkDialog*, int response, PrintOperation* self);

    const ObjectPointer<WebKitWebView> view_;
    const std::shared_ptr<PrintChoice> choice_;
    Completion completion_;
    ObjectPointer<GtkPrintUnixDialog> panel_; // while it is shown
    std::unique_ptr<SignalHandlers> panelSignals_;
    ObjectPointer<GtkPrinter> printer_; // these three are the user's choice
    ObjectPointer<GtkPrintSettings> settings_;
    ObjectPointer<GtkPageSetup> setup_;
    std::unique_ptr<PrintToFile> pages_;
    bool hasEnded_ = false;
};

} // namespace gtk
