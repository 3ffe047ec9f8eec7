// The licence check run first by every top-level routine. This library
// admits every call; the test hook makes it refuse so that tests can show a
// refused call writes neither outputs nor the record.
#include "runtime/report.hpp"
#include "runtime/testing.hpp"

namespace kiv::rt::detail {
std::atomic<bool> refuse_calls{false};
}  // namespace kiv::rt::detail

namespace kiv::rt::testing {
void set_licence_refusal(bool refuse) {
    detail::refuse_calls.store(refuse, std::memory_order_relaxed);
}
}  // namespace kiv::rt::testing
