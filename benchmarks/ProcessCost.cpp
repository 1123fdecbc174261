#include "ProcessCost.h"

#include <fstream>
#include <limits>
#include <unistd.h>

namespace {

// A figure of the kernel's about what a process has in memory, in megabytes.
double figureOf(pid_t process, const char* name)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    std::string word;
    while (file >> word) {
        double kibibytes = 0;
        if (word == name && file >> kibibytes)
            return kibibytes / 1024;
    }
    return 0;
}

template <class Figure> double sumOver(const desktop::Process& program, Figure figure)
{
    double sum = figure(program.pid());
    for (const auto process : program.descendants())
        sum += figure(process);
    return sum;
}

} // namespace

double memoryOf(pid_t process)
{
    return figureOf(process, "Pss:");
}

double memoryOf(const desktop::Process& program)
{
    return sumOver(program, [](pid_t process) { return memoryOf(process); });
}

double ownMemoryOf(pid_t process)
{
    return figureOf(process, "Anonymous:");
}

double ownMemoryOf(const desktop::Process& program)
{
    return sumOver(program, [](pid_t process) { return ownMemoryOf(process); });
}

std::chrono::milliseconds processorTimeOf(pid_t process)
{
    constexpr int fieldsBetween = 11; // the name and the time in user mode
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    file.ignore(std::numeric_limits<std::streamsize>::max(), ')');
    std::string skipped;
    for (int field = 0; field < fieldsBetween; ++field)
        file >> skipped;
    long inProgram = 0, inSystem = 0; // ticks
    file >> inProgram >> inSystem;
    return std::chrono::milliseconds((inProgram + inSystem) * 1000 / sysconf(_SC_CLK_TCK));
}
