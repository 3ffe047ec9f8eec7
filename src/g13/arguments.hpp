// Argument checks shared by the routines of the time-series chapter.
#pragma once

#include <initializer_list>
#include <utility>

#include "kiv.h"
#include "runtime/report.hpp"

namespace kiv::g13 {

using NamedPointer = std::pair<const void *, const char *>;

// Reports NE_BAD_PARAM naming the first null pointer among `arguments`
// and returns true; returns false when none is null.
inline bool report_null_argument(KivError *fail, const char *routine,
                                 std::initializer_list<NamedPointer> arguments) {
    for (const auto &[pointer, name] : arguments) {
        if (pointer == nullptr) {
            kiv::rt::report_template(fail, routine, NE_BAD_PARAM, name);
            return true;
        }
    }
    return false;
}

}  // namespace kiv::g13
