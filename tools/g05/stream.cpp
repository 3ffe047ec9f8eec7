// Writes a generator's stream to standard output as raw 32-bit words, for
// statistical test batteries (for example `dieharder -a -g 200`):
//   stream basic [seed]      the basic generator (g05cac), top 32 bits of u
//   stream wh <g> [seed]     Wichmann-Hill generator g (g05kac)
//   stream normal [seed]     normal deviates (g05ddc) mapped to uniforms by
//                            their distribution function
// Not part of the build: compile with
//   g++ -O2 -std=c++20 -Iinclude tools/g05/stream.cpp -Lbuild/release -lkiv
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "kiv.h"

namespace {

std::uint32_t word(double u) {
    return static_cast<std::uint32_t>(std::ldexp(u, 32));
}

}  // namespace

int main(int argc, char **argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: stream basic|wh <g>|normal [seed]\n");
        return 2;
    }
    const bool wh = std::strcmp(argv[1], "wh") == 0;
    const int seed_arg = wh ? 3 : 2;
    const int seed = argc > seed_arg ? std::atoi(argv[seed_arg]) : 1;
    int generator = wh && argc > 2 ? std::atoi(argv[2]) : 0;
    int state[4] = {seed, seed + 1, seed + 2, seed + 3};
    if (wh) g05kbc(&generator, state);
    g05cbc(seed);
    std::uint32_t block[4096];
    for (;;) {
        for (std::uint32_t &w : block) {
            if (wh)
                w = word(g05kac(generator, state));
            else if (std::strcmp(argv[1], "normal") == 0)
                w = word(0.5 * std::erfc(-g05ddc(0.0, 1.0) / std::sqrt(2.0)));
            else
                w = word(g05cac());
        }
        if (std::fwrite(block, sizeof block, 1, stdout) != 1) return 0;
    }
}
