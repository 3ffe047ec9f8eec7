// Shared pieces of the correlation tests.
#pragma once

#include "kiv.h"
#include "support/support.hpp"

namespace kiv_test {

using kiv::test_support::quiet_record;

}  // namespace kiv_test
