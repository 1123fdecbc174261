#pragma once

#include "data/Gazetteer.h"
#include "data/SeededRecord.h"

#include <vector>

namespace demo {

/// A good half year of drives, and the fuel and charging that they needed, oldest first.
std::vector<SeededRecord> seededDrives();

/// The way that the drive of this id took, from its start to its end, the same every time.
std::vector<Coordinate> seededWay(int driveId, std::string_view from, std::string_view to);

} // namespace demo
