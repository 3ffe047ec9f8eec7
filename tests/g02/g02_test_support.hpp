// Shared pieces of the correlation tests.
#pragma once

#include "kiv.h"

namespace kiv_test {

// A record that keeps failures quiet; its code must be cleared by the routine.
inline KivError quiet_record() {
    KivError fail{};
    fail.print = 0;
    fail.code = -1;
    return fail;
}

}  // namespace kiv_test
