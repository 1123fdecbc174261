#pragma once

#include "data/DemoData.h"

#include <nlohmann/json.hpp>

namespace demo {

/// What the dashboard shows: this month's totals beside the last month's, twelve weeks of distance
/// by purpose, costs by kind, the latest drives and what is due soon.
nlohmann::json dashboardSummary(const DemoData&);

/// What the reports page shows: distance, drives, energy and costs of the last six months, by month
/// and by vehicle.
nlohmann::json reportSummary(const DemoData&);

} // namespace demo
