// The module's argument-fetch export and the replies of exports without a
// routine (see frame.hpp). The reply's text is the runtime's own text of
// NE_NOT_AVAILABLE: "NE_NOT_AVAILABLE:\n  Routine %s is not available in
// this library.", with the routine's name.
#include "binding/frame.hpp"

#include <cstdio>

#include "runtime/code_table.hpp"
#include "runtime/report.hpp"

namespace kiv::binding {

void report_not_available(const char *routine, KivError *fail) {
    kiv::rt::report_template(fail, routine, NE_NOT_AVAILABLE, routine);
}

void print_not_available(const char *routine) {
    const std::string text =
        kiv::rt::format_message(kiv::rt::code_template(NE_NOT_AVAILABLE), {routine});
    std::fputs(text.c_str(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

}  // namespace kiv::binding

// The interpreter resolves argument fetches of the module through this
// export; it forwards to the interpreter's own kernel.
extern "C" KIV_API void *__builtin_Ch_VaArg(ChInterp_t interp, ChVaList_t *ap) {
    return __builtin_Ch_VaArg_kernel(interp, ap);
}
