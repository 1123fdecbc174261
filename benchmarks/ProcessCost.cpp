#include "ProcessCost.h"

#include <fstream>
#include <limits>
#include <unistd.h>

double memoryOf(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    std::string word;
    while (file >> word) {
        double kibibytes = 0;
        if (word == "Pss:" && file >> kibibytes)
            return kibibytes / 1024;
    }
    return 0;
}

double memoryOf(const desktop::Process& program)
{
    double sum = memoryOf(program.pid());
    for (const auto process : program.descendants())
        sum += memoryOf(process);
    return sum;
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
