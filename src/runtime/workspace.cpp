// Workspace services: x04bbc (allocate), x04bcc (resize), x04bdc (free and
// clear the pointer), all on the C runtime heap. A test hook can make
// allocations fail after a given number of successes on the calling thread.
#include <cstdlib>

#include "kiv.h"
#include "runtime/testing.hpp"

namespace {

thread_local long allocations_before_failure = -1;

bool allocation_refused() {
    if (allocations_before_failure < 0) return false;
    if (allocations_before_failure == 0) return true;
    --allocations_before_failure;
    return false;
}

}  // namespace

namespace kiv::rt::testing {
void fail_allocations_after(long successes) {
    allocations_before_failure = successes;
}
}  // namespace kiv::rt::testing

extern "C" {

KIV_API void *x04bbc(size_t size) {
    if (allocation_refused()) return nullptr;
    return std::malloc(size);
}

KIV_API void *x04bcc(void *block, size_t size) {
    if (allocation_refused()) return nullptr;
    return std::realloc(block, size);
}

KIV_API void x04bdc(void **block) {
    if (block == nullptr) return;
    std::free(*block);
    *block = nullptr;
}

}  // extern "C"
