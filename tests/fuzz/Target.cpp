#include "fuzz/Target.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

void fuzz::require(bool holds, std::string_view expectation)
{
    if (holds)
        return;
    std::fprintf(
        stderr, "Broken: %.*s\n", static_cast<int>(expectation.size()), expectation.data());
    std::abort();
}

// The name that the fuzzing engine calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    fuzz::tryInput({reinterpret_cast<const char*>(bytes), count});
    return 0;
}
