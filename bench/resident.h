// How much memory a program holds.
#pragma once

#include <unistd.h>

#include <fstream>

/// Kilobytes of this process that are in memory now.
inline long ResidentKilobytes() {
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statm >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}
