// The stand-in interpreter of host.hpp and the four runtime functions that
// libkiv.dl imports (exported from the test executable).
#include "host.hpp"

#include <dlfcn.h>

#include <cstdarg>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kiv_test {

namespace {
thread_local int thread_starts = 0;
constexpr std::size_t kSpare = 64;  // past-the-end slots: over-reads stay harmless
unsigned char spare_value[16] = {};

ArgList &list_of(ChInterp_t interp) {
    return *static_cast<ArgList *>(interp);
}

// Whether a cursor position lies on the list's slots.
bool on_list(ArgList &list, void *position) {
    auto *slot = static_cast<void **>(position);
    return slot >= list.addresses.data() && slot <= list.addresses.data() + list.addresses.size();
}
}  // namespace

ArgList &ArgList::add(void *address) {
    addresses.push_back(address);
    ++count;
    return *this;
}

void *ArgList::store(const void *data, std::size_t size) {
    values_.push_back(Value{});
    std::memcpy(values_.back().bytes, data, size);
    return values_.back().bytes;
}

void *ArgList::varg() {
    if (!closed_) {
        addresses.insert(addresses.end(), kSpare, spare_value);
        closed_ = true;
    }
    return this;
}

int starts_on_this_thread() {
    return thread_starts;
}

void *module() {
    static void *handle = [] {
        void *h = dlopen(KIV_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
        if (h == nullptr) throw std::runtime_error(dlerror());
        return h;
    }();
    return handle;
}

void *export_address(const std::string &name) {
    return dlsym(module(), name.c_str());
}

double call_export(const std::string &name, const std::string &result, ArgList &list,
                   void **pointer) {
    void *address = export_address(name);
    if (address == nullptr) throw std::runtime_error("missing export " + name);
    void *varg = list.varg();
    if (result == "double") return reinterpret_cast<double (*)(void *)>(address)(varg);
    if (result == "int") return reinterpret_cast<int (*)(void *)>(address)(varg);
    if (result == "pointer") {
        void *value = reinterpret_cast<void *(*)(void *)>(address)(varg);
        if (pointer != nullptr) *pointer = value;
        return value == nullptr ? 0.0 : 1.0;
    }
    reinterpret_cast<void (*)(void *)>(address)(varg);
    return 0.0;
}

const std::vector<Entry> &catalogue() {
    static const std::vector<Entry> rows = [] {
        std::vector<Entry> out;
        std::ifstream in(KIV_CATALOGUE_PATH);
        if (!in) throw std::runtime_error("cannot read " KIV_CATALOGUE_PATH);
        std::string line;
        while (std::getline(in, line)) {
            if (line.empty() || line[0] == '#' || line[0] == '-') continue;  // no export
            std::vector<std::string> f;
            std::stringstream fields(line);
            for (std::string field; std::getline(fields, field, '\t');) f.push_back(field);
            f.resize(9);
            Entry e{f[0],        f[1],        std::stoi(f[2]), f[3], f[4],
                    f[5] == "1", f[6] == "1", f[7] == "1",     {}};
            std::stringstream params(f[8]);
            for (std::string p; std::getline(params, p, ';');) {
                p = p.substr(0, p.find('{'));  // the kiv tool's annotation
                p = p.substr(0, p.find_last_not_of(' ') + 1);
                const auto first = p.find_first_not_of(' ');
                if (first != std::string::npos) e.params.push_back(p.substr(first));
            }
            out.push_back(e);
        }
        return out;
    }();
    return rows;
}

const Entry &entry(const std::string &export_name) {
    for (const Entry &e : catalogue())
        if (e.export_name == export_name) return e;
    throw std::runtime_error("not in the catalogue: " + export_name);
}

KivError quiet_record(void (*handler)(const char *, int, const char *)) {
    KivError record{};
    record.print = 0;
    record.handler = handler;
    return record;
}

}  // namespace kiv_test

using kiv_test::list_of;

extern "C" {

ChVaList_t __builtin_Ch_VaStart(ChInterp_t *interp, void *varg) {
    auto &list = *static_cast<kiv_test::ArgList *>(varg);
    ++list.starts;
    ++kiv_test::thread_starts;
    *interp = &list;
    return list.addresses.data();
}

void *__builtin_Ch_VaArg_kernel(ChInterp_t interp, ChVaList_t *ap) {
    kiv_test::ArgList &list = list_of(interp);
    auto *slot = static_cast<void **>(*ap);
    if (!kiv_test::on_list(list, slot)) list.foreign = true;
    *ap = slot + 1;
    return *slot;
}

void Ch_VaEnd(ChInterp_t interp, ChVaList_t ap) {
    kiv_test::ArgList &list = list_of(interp);
    ++list.ends;
    if (!kiv_test::on_list(list, ap)) list.foreign = true;
    list.fetched = static_cast<void **>(ap) - list.addresses.data();
}

// Every script function that the tests hand to the module is an error
// handler: (message, code, routine).
int Ch_CallFuncByAddr(ChInterp_t interp, void *func, void *result, ...) {
    va_list args;
    va_start(args, result);
    const char *message = va_arg(args, const char *);
    const int code = va_arg(args, int);
    const char *routine = va_arg(args, const char *);
    va_end(args);
    list_of(interp).script_calls.push_back({func, result == nullptr, message, code, routine});
    auto *function = static_cast<kiv_test::ScriptFunction *>(func);
    if (function->action) function->action();
    return 0;
}

}  // extern "C"
