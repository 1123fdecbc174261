#pragma once

#include "platform/gtk/diagnosis/Finding.h"

#include <vector>

namespace gtk {

// A page of text: a line for each finding, its advice below it, and the number of problems and
// warnings at the end. Where `home` begins a path it becomes "~", which tells nobody's name.
std::string report(const std::vector<Finding>& findings, const std::string& home);

bool hasProblem(const std::vector<Finding>& findings);

} // namespace gtk
