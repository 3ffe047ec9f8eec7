// The licence check run first by every top-level routine. This library
// admits every call; the test hook makes it refuse on the calling thread so
// that tests can show a refused call writes neither outputs nor the record.
#include "runtime/report.hpp"
#include "runtime/testing.hpp"

namespace {
thread_local bool refuse_calls = false;
}

namespace kiv::rt {
bool licence_check() { return !refuse_calls; }
}  // namespace kiv::rt

namespace kiv::rt::testing {
void set_licence_refusal(bool refuse) { refuse_calls = refuse; }
}  // namespace kiv::rt::testing
