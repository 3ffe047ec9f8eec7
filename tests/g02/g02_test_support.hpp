// Shared pieces of the correlation tests: a quiet error record and the
// table-driven check of error paths.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kiv.h"

namespace kiv_test {

inline KivError quiet_record() {
    KivError fail{};
    fail.print = 0;
    fail.code = -1;
    return fail;
}

// One call that must fail with the given code and exact message.
struct ErrorCase {
    const char *what;
    std::function<void(KivError *)> call;
    int code;
    std::string message;
};

inline void expect_errors(const std::vector<ErrorCase> &cases) {
    for (const ErrorCase &c : cases) {
        KivError fail = quiet_record();
        c.call(&fail);
        EXPECT_EQ(fail.code, c.code) << c.what;
        EXPECT_EQ(std::string(fail.message), c.message) << c.what;
    }
}

}  // namespace kiv_test
