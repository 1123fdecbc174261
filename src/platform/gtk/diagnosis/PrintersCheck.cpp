#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/diagnosis/OpenDisplay.h"

#include <gtk/gtkunixprint.h>

namespace gtk {

namespace {

struct Printers {
    int count = 0; // of those that print on paper
    bool hasFilePrinter = false; // which makes PDF documents
};

gboolean add(GtkPrinter* printer, gpointer data)
{
    auto& printers = *static_cast<Printers*>(data);
    if (!gtk_printer_is_virtual(printer))
        ++printers.count;
    else if (gtk_printer_accepts_pdf(printer))
        printers.hasFilePrinter = true;
    return FALSE; // go on
}

} // namespace

std::vector<Finding> checkPrinters()
{
    constexpr auto title = "Printers";
    if (!openDisplay())
        return {{title, "not looked for without a display", Verdict::warning}};

    Printers printers;
    gtk_enumerate_printers(add, &printers, nullptr, TRUE);
    if (!printers.hasFilePrinter) {
        return {{title, "GTK's own for PDF files is missing", Verdict::problem,
            "Reports cannot be saved. Install GTK's print backends."}};
    }
    if (printers.count == 0)
        return {{title, "none; reports can be saved as PDF"}};
    return {{title, std::to_string(printers.count) + ", and PDF files"}};
}

} // namespace gtk
