#pragma once

#include "harness/Process.h"

#include <chrono>

// What a process has in memory: its proportional set size, in megabytes. 0 when it has gone.
double memoryOf(pid_t process);

// The same of the program with everything it has started.
double memoryOf(const desktop::Process& program);

// What it has in memory that is no part of any file, in megabytes: other programs, which come and
// go, do not change that.
double ownMemoryOf(pid_t process);
double ownMemoryOf(const desktop::Process& program);

// The processor time that a process has used since its start, to a hundredth of a second.
std::chrono::milliseconds processorTimeOf(pid_t process);
