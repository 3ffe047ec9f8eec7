// Operating-system services on Windows: the output console, named mutexes
// shared by all processes of the machine, and the clocks.
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <ctime>

#include "runtime/platform.hpp"

namespace kiv::platform {

namespace {

volatile LONG console_set_up = 0;

HANDLE named_mutex(const char *name) {
    HANDLE handle = CreateMutexA(nullptr, FALSE, name);
    return handle;
}

HANDLE io_mutex() {
    static HANDLE handle = named_mutex("KIVIOLock");
    return handle;
}

HANDLE allocator_mutex() {
    static HANDLE handle = named_mutex("KIVAllocatorLock");
    return handle;
}

void acquire(HANDLE handle) {
    if (handle != nullptr) WaitForSingleObject(handle, INFINITE);
}

void release(HANDLE handle) {
    if (handle != nullptr) ReleaseMutex(handle);
}

}  // namespace

void ensure_console() {
    if (console_set_up != 0) return;
    // An unnamed mutex, owned by the caller, guards the set-up.
    static HANDLE guard = CreateMutexA(nullptr, TRUE, nullptr);
    if (guard != nullptr) WaitForSingleObject(guard, INFINITE);
    if (console_set_up == 0) {
        if (AllocConsole()) {
            HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
            int fd = _open_osfhandle(reinterpret_cast<intptr_t>(output), _O_TEXT);
            FILE *stream = fd >= 0 ? _fdopen(fd, "w") : nullptr;
            if (stream != nullptr) {
                *stdout = *stream;
                *stderr = *stream;
                setvbuf(stdout, nullptr, _IONBF, 0);
                setvbuf(stderr, nullptr, _IONBF, 0);
            }
            SetConsoleTitleA("KIV C Library standard output");
            COORD size;
            size.X = 5000;
            size.Y = 80;
            SetConsoleScreenBufferSize(output, size);
        }
        InterlockedExchange(&console_set_up, 1);
    }
    if (guard != nullptr) ReleaseMutex(guard);
}

IoLock::IoLock() {
    acquire(io_mutex());
}
IoLock::~IoLock() {
    release(io_mutex());
}
AllocatorLock::AllocatorLock() {
    acquire(allocator_mutex());
}
AllocatorLock::~AllocatorLock() {
    release(allocator_mutex());
}

long calendar_seconds() {
    const std::time_t now = std::time(nullptr);
    return now == static_cast<std::time_t>(-1) ? -1L : static_cast<long>(now);
}

bool local_time(LocalTime &out) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    out = {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
    return true;
}

}  // namespace kiv::platform
