#pragma once

#include "harness/Process.h"

#include <chrono>

// What a process has in memory: its proportional set size, in megabytes. 0 when it has gone.
double memoryOf(pid_t process);

// The same of the program with everything it has started.
double memoryOf(const desktop::Process& program);

// The processor time that a process has used since its start, to a hundredth of a second.
std::chrono::milliseconds processorTimeOf(pid_t process);
