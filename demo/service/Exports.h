#pragma once

#include "data/DemoData.h"
#include "http/Answer.h"

#include <optional>
#include <string_view>

namespace demo {

/// The attachment of this file name, made from the data as they are now: an export
/// ("velmaro_export.vlarchive", "velmaro_data.csv", "velmaro_data.json", "velmaro_archive.zip") or
/// "invoice.pdf". Nothing for any other name.
std::optional<Answer> exportAnswer(std::string_view fileName, const DemoData&);

} // namespace demo
