#pragma once

#include <string>

namespace gtk {

enum class Verdict {
    ok,
    warning, // something is missing that the program can do without
    problem, // the program cannot do what it is there for
};

// What one look at the machine has brought to light, for a person to read.
struct Finding {
    std::string title; // what was looked at, in a word or two
    std::string finding; // what is there, in a few words
    Verdict verdict = Verdict::ok;
    std::string advice = {}; // what to do about it; empty when there is nothing to do
};

} // namespace gtk
