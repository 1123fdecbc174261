#pragma once

#include <string>

namespace demo {

/// A one-page invoice as PDF, with selectable text.
std::string invoicePdf();

} // namespace demo
