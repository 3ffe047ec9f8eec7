// Text output services: x04bay appends a text to a named file or writes it
// to standard output (through the library's console where the system has
// one); x04aaf answers the error unit, which is always 6.
//
// Any failure to open, write or close is fatal: a line naming the file goes
// to standard error and the process exits with status 1.
#include <cstdio>
#include <cstdlib>

#include "kiv.h"
#include "runtime/platform.hpp"

extern "C" {

KIV_API void x04bay(const char *file, const char *text) {
    if (text == nullptr) text = "";
    if (file == nullptr) {
        kiv::platform::ensure_console();
        if (std::fprintf(stdout, "%s", text) < 0) {
            std::fprintf(stderr, "Unable To Write to the stdout\n");
            std::exit(1);
        }
        std::fflush(stdout);
        return;
    }
    std::FILE *stream = std::fopen(file, "a");
    if (stream == nullptr) {
        std::fprintf(stderr, "Unable To Open Output File: %s\n", file);
        std::exit(1);
    }
    if (std::fprintf(stream, "%s", text) < 0) {
        std::fprintf(stderr, "Unable To Write to the Output File: %s\n", file);
        std::exit(1);
    }
    if (std::fclose(stream) != 0) {
        std::fprintf(stderr, "Unable To Close the Output File: %s\n", file);
        std::exit(1);
    }
}

KIV_API void x04aaf(int flag, int *unit) {
    // The error unit cannot be changed in this library: any flag other than
    // 0 is a request to set it, and is ignored.
    if (flag == 0 && unit != nullptr) *unit = 6;
}

}  // extern "C"
