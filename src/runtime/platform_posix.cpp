// Operating-system services on POSIX systems.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <mutex>
#include <string>

#include "runtime/platform.hpp"

namespace kiv::platform {

namespace {

// A lock shared by the processes of the machine: flock on a file in the
// temporary directory, plus a mutex for the threads of this process (flock
// is per open file description, so one descriptor is shared by all
// threads and the mutex orders them).
class FileLock {
public:
    explicit FileLock(const char *name) : name_(name) {}

    void lock() {
        mutex_.lock();
        if (fd_ < 0) {
            const char *dir = std::getenv("TMPDIR");
            std::string path = (dir != nullptr && *dir != '\0') ? dir : "/tmp";
            path += "/";
            path += name_;
            fd_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        }
        if (fd_ >= 0) {
            while (::flock(fd_, LOCK_EX) != 0) {
            }
        }
    }

    void unlock() {
        if (fd_ >= 0) ::flock(fd_, LOCK_UN);
        mutex_.unlock();
    }

private:
    const char *name_;
    std::mutex mutex_;
    int fd_ = -1;
};

FileLock &io_lock() {
    static FileLock lock("KIVIOLock");
    return lock;
}

FileLock &allocator_lock() {
    static FileLock lock("KIVAllocatorLock");
    return lock;
}

}  // namespace

void ensure_console() {}

IoLock::IoLock() {
    io_lock().lock();
}
IoLock::~IoLock() {
    io_lock().unlock();
}
AllocatorLock::AllocatorLock() {
    allocator_lock().lock();
}
AllocatorLock::~AllocatorLock() {
    allocator_lock().unlock();
}

long calendar_seconds() {
    const std::time_t now = std::time(nullptr);
    return now == static_cast<std::time_t>(-1) ? -1L : static_cast<long>(now);
}

bool local_time(LocalTime &out) {
    const std::time_t now = std::time(nullptr);
    if (now == static_cast<std::time_t>(-1)) return false;
    std::tm parts{};
    if (::localtime_r(&now, &parts) == nullptr) return false;
    out = {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
           parts.tm_hour,        parts.tm_min,     parts.tm_sec};
    return true;
}

}  // namespace kiv::platform
