#pragma once

#include "data/SeededRecord.h"

#include <vector>

namespace demo {

/// The vehicles, drivers, account groups and support tickets that the account starts with.
std::vector<SeededRecord> seededRecords();

} // namespace demo
