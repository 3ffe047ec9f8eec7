// The operating-system services the library needs. Each system has one
// implementation file (platform_posix.cpp, platform_windows.cpp); no other
// file of the library tests for the operating system.
#pragma once

#include <ctime>

namespace kiv::platform {

// Opens the library's output console once per process, where the system
// has one to open (Windows); elsewhere standard output is used as it is.
void ensure_console();

// Cross-process locks, named "KIVIOLock" and "KIVAllocatorLock": held for
// the lifetime of the object. On Windows they are named mutexes; on POSIX
// systems an advisory lock on a file in the temporary directory together
// with a process-local mutex (released by the system if a holder dies).
class IoLock {
public:
    IoLock();
    ~IoLock();
    IoLock(const IoLock &) = delete;
    IoLock &operator=(const IoLock &) = delete;
};

class AllocatorLock {
public:
    AllocatorLock();
    ~AllocatorLock();
    AllocatorLock(const AllocatorLock &) = delete;
    AllocatorLock &operator=(const AllocatorLock &) = delete;
};

// Calendar time in whole seconds, or -1 when the clock fails.
long calendar_seconds();

// Broken-down local time for clock seeding: fills year..second and returns
// true, or returns false when the clock fails.
struct LocalTime {
    int year, month, day, hour, minute, second;
};
bool local_time(LocalTime &out);

// Processor time used by the process, in seconds (standard C on every
// system, so defined once here).
inline double processor_seconds() {
    const std::clock_t used = std::clock();
    return used == static_cast<std::clock_t>(-1)
               ? 0.0
               : static_cast<double>(used) / static_cast<double>(CLOCKS_PER_SEC);
}

}  // namespace kiv::platform
