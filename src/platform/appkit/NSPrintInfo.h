#pragma once

namespace platform {

// How pages are put on paper. It is a plain value. Main thread only.
struct NSPrintInfo {
    enum class JobDisposition { spool, preview, save, cancel };

    // What happens to content larger than a sheet: it goes on on the next one, is scaled down to
    // one, or is cut off.
    enum class PaginationMode { automatic, fit, clip };

    // What print operations of this application start from; callers copy it before they change it.
    static NSPrintInfo& shared();

    JobDisposition jobDisposition = JobDisposition::spool;

    // Points from the edges of the sheet.
    double topMargin = 90;
    double bottomMargin = 90;
    double leftMargin = 72;
    double rightMargin = 72;

    PaginationMode horizontalPagination = PaginationMode::clip;
    PaginationMode verticalPagination = PaginationMode::automatic;
};

} // namespace platform
