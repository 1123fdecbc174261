#pragma once

#include <string_view>

// What every file named after a target defines, and what it is written with.
namespace fuzz {

// Gives `input`, which can be any bytes, to the code under test and requires what must hold of the
// outcome. Called any number of times in a process, so nothing may stay behind.
void tryInput(std::string_view input);

// Ends the program with `expectation` on its error output unless that `holds`.
void require(bool holds, std::string_view expectation);

} // namespace fuzz
