// Checked allocation of work arrays through the library's workspace
// services (x04bbc / x04bdc).
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>

#include "kiv.h"

namespace kiv::rt {

// Number of bytes for `count` elements of `size` bytes, or 0 when the
// product does not fit in size_t. A count of 0 is raised to 1.
inline std::size_t checked_bytes(std::size_t count, std::size_t size) {
    if (count == 0) count = 1;
    if (size != 0 && count > std::numeric_limits<std::size_t>::max() / size) return 0;
    return count * size;
}

// Same for a signed count from the C interface: a negative count, or one
// whose byte size overflows, gives 0.
inline std::size_t checked_bytes_signed(long long count, std::size_t size) {
    if (count < 0) return 0;
    if (static_cast<unsigned long long>(count) > std::numeric_limits<std::size_t>::max()) return 0;
    return checked_bytes(static_cast<std::size_t>(count), size);
}

// Allocates `count` elements of T through x04bbc; nullptr when the size
// overflows or the heap refuses. The caller reports NE_ALLOC_FAIL.
template <class T>
T *allocate(long long count) {
    const std::size_t bytes = checked_bytes_signed(count, sizeof(T));
    if (bytes == 0) return nullptr;
    return static_cast<T *>(x04bbc(bytes));
}

// Product of two non-negative counts, or -1 when it would overflow.
inline long long checked_count(long long a, long long b) {
    if (a < 0 || b < 0) return -1;
    if (a != 0 && b > std::numeric_limits<long long>::max() / a) return -1;
    return a * b;
}

// Owner of one work array: freed through x04bdc on every exit path.
template <class T>
class WorkArray {
public:
    WorkArray() = default;
    explicit WorkArray(long long count) : data_(allocate<T>(count)) {}
    WorkArray(const WorkArray &) = delete;
    WorkArray &operator=(const WorkArray &) = delete;
    ~WorkArray() { release(); }

    bool ok() const { return data_ != nullptr; }
    T *get() const { return data_; }
    T &operator[](std::size_t i) const { return data_[i]; }
    void release() {
        void *block = data_;
        x04bdc(&block);
        data_ = nullptr;
    }

private:
    T *data_ = nullptr;
};

}  // namespace kiv::rt
