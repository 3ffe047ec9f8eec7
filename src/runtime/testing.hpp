// Test hooks of the runtime. Not part of the public interface; used by the
// test suite (which links the static library) to force rare paths.
#pragma once

namespace kiv::rt::testing {

// Makes the licence check refuse (true) or admit (false), process-wide.
void set_licence_refusal(bool refuse);

// After `successes` more successful allocations on this thread, every
// x04bbc/x04bcc call fails; a negative value turns the failure off.
void fail_allocations_after(long successes);

}  // namespace kiv::rt::testing
