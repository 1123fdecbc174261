#pragma once

#include "platform/foundation/UUID.h"
#include "platform/webkit/WKWebView.h"
#include "reports/ReportJob.h"

#include <map>
#include <optional>
#include <string>

namespace velmaro {

// Prints the reports that pages hand over as documents, or saves them as PDF in the user's folder
// for downloads. Each report is a job with an invisible web view of its own. Any number can run at
// once, and no job can be cancelled: a document that never finishes loading stays until the
// application ends.
//
// Main thread only. Callers are not told how a job ends; the user is.
class ReportDownloader {
public:
    // The one of this application.
    static ReportDownloader& shared();

    // `html` is a complete document. Without a file name the file is called like the title.
    void savePDF(const std::string& title, const std::optional<std::string>& filename,
        const std::string& html);

    // `title` names the job in the printer's queue.
    void printReport(const std::string& title, const std::string& html);

    // What one job needs to stay alive.
    struct Session {
        std::shared_ptr<platform::WKWebView> webView;
        std::shared_ptr<platform::WKNavigationDelegate> delegate; // the web view's
    };

    // The jobs that have not ended. A job's web view and delegate live as long as it is in here.
    std::map<platform::UUID, Session> pending;

private:
    void start(const std::shared_ptr<ReportJob>& job, const std::string& html);
};

} // namespace velmaro
