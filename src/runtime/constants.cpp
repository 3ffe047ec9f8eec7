// Machine constants of IEEE double precision, returned with exact bit
// patterns.
//
//   x02ajc  machine precision 2^-53 (1 + 2^-52), bits 0x3CA0000000000001:
//           one unit above 2^-53 in its last place, so that 1 + x02ajc()
//           rounds up to the next double under round-to-nearest.
//   x02akc  smallest positive normalised number 2^-1022, 0x0010000000000000.
//   x02alc  largest finite number, 0x7FEFFFFFFFFFFFFF.
#include <bit>
#include <cstdint>

#include "kiv.h"

extern "C" {

KIV_API double x02ajc(void) {
    return std::bit_cast<double>(std::uint64_t{0x3CA0000000000001});
}
KIV_API double x02akc(void) {
    return std::bit_cast<double>(std::uint64_t{0x0010000000000000});
}
KIV_API double x02alc(void) {
    return std::bit_cast<double>(std::uint64_t{0x7FEFFFFFFFFFFFFF});
}

}  // extern "C"
