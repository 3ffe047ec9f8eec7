// The stand-in interpreter of module_host.hpp.
#include "module_host.hpp"

#include <dlfcn.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace kiv::fuzz {

namespace {
char script_function = 0;  // its address is the script handler's
[[noreturn]] void host_finding(const char *what) {
    std::fprintf(stderr, "interpreter host: %s\n", what);
    std::fflush(stderr);
    __builtin_trap();
}
ArgumentList &list_of(void *interp) {
    return *static_cast<ArgumentList *>(interp);
}
}  // namespace

void *module_symbol(const char *name) {
    static void *handle = [] {
        void *h = dlopen(KIV_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
        if (h == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            std::abort();
        }
        return h;
    }();
    return dlsym(handle, name);
}

void *script_handler_token() {
    return &script_function;
}

}  // namespace kiv::fuzz

using kiv::fuzz::ArgumentList;

extern "C" {

__attribute__((visibility("default"))) void *__builtin_Ch_VaStart(void **interp, void *varg) {
    auto &list = *static_cast<ArgumentList *>(varg);
    ++list.starts;
    *interp = &list;
    return &list;
}

__attribute__((visibility("default"))) void *__builtin_Ch_VaArg_kernel(void *interp, void **ap) {
    ArgumentList &list = kiv::fuzz::list_of(interp);
    if (*ap != &list) kiv::fuzz::host_finding("cursor of another list");
    if (list.ends != 0) kiv::fuzz::host_finding("argument fetched after Ch_VaEnd");
    if (list.fetched >= list.addresses.size())
        kiv::fuzz::host_finding("argument fetched past the end of the list");
    return list.addresses[list.fetched++];
}

__attribute__((visibility("default"))) void Ch_VaEnd(void *interp, void *ap) {
    ArgumentList &list = kiv::fuzz::list_of(interp);
    if (ap != &list) kiv::fuzz::host_finding("Ch_VaEnd with another list's cursor");
    ++list.ends;
}

__attribute__((visibility("default"))) int Ch_CallFuncByAddr(void *interp, void *func, void *result,
                                                             ...) {
    ArgumentList &list = kiv::fuzz::list_of(interp);
    if (func != kiv::fuzz::script_handler_token())
        kiv::fuzz::host_finding("unknown script function");
    if (result != nullptr) kiv::fuzz::host_finding("result address for a handler");
    va_list args;
    va_start(args, result);
    const char *message = va_arg(args, const char *);
    const int code = va_arg(args, int);
    const char *routine = va_arg(args, const char *);
    va_end(args);
    if (message == nullptr || routine == nullptr) kiv::fuzz::host_finding("null handler argument");
    ++list.script_calls;
    list.last_script_code = code;
    list.last_script_routine = routine;
    return 0;
}

}  // extern "C"
