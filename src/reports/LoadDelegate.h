#pragma once

#include "platform/foundation/Data.h"
#include "reports/ReportJob.h"

#include <optional>
#include <string>

namespace velmaro {

// Sees one report through from its loading to its PDF file, and tells the user what came of it.
class LoadDelegate final : public ReportJob {
public:
    LoadDelegate(const platform::UUID& id, std::string title, std::optional<std::string> filename);

    const std::optional<std::string> filename; // asked for by the page, without ".pdf"

private:
    void carryOut(platform::WKWebView& webView) override;
    void save(const platform::Data& document) const;
};

} // namespace velmaro
