#pragma once

namespace platform {

// What of a page goes into a PDF document: the whole of its content, which is all there is to
// choose so far.
struct WKPDFConfiguration { };

} // namespace platform
