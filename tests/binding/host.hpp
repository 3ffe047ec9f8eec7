// A stand-in for the interpreter, enough to drive libkiv.dl from a test:
// the four runtime functions that the module imports, argument lists of
// value addresses, script functions that Ch_CallFuncByAddr reaches, and
// access to the module's exports and its catalogue.
//
// The interpreter handle of a list is the list's own address, so the host
// sees which list every fetch, close and script call was made with.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "binding/ch_host.h"
#include "kiv.h"

namespace kiv_test {

// One call of a script error handler, as the host received it.
struct ScriptCall {
    const void *function;
    bool result_address_null;
    std::string message;
    int code;
    std::string routine;
};

// A script function: its address is what a script stores in a record's
// handler field; the host runs `action` when the function is called.
struct ScriptFunction {
    std::function<void()> action;
};

// The argument list of one call of an export.
class ArgList {
public:
    // Appends the address of a value (the value itself stays the caller's).
    ArgList &add(void *address);
    template <class T>
    ArgList &value(T v) {
        return add(store(&v, sizeof v));
    }

    // What the export receives; closes the list for further additions.
    void *varg();

    int starts = 0;                        // __builtin_Ch_VaStart calls
    int ends = 0;                          // Ch_VaEnd calls
    long fetched = -1;                     // arguments taken off the list when it was closed
    bool foreign = false;                  // a fetch or close came with another list's handle
    std::vector<ScriptCall> script_calls;  // Ch_CallFuncByAddr under this handle

    std::vector<void *> addresses;  // padded with spare slots past the end
    std::size_t count = 0;          // the arguments added

private:
    void *store(const void *data, std::size_t size);
    struct Value {
        alignas(8) unsigned char bytes[16];
    };
    std::deque<Value> values_;
    bool closed_ = false;
};

// Host-wide counters of the calling thread.
int starts_on_this_thread();

// Handle to the loaded module (loaded on first use).
void *module();
void *export_address(const std::string &name);

template <class F>
F module_function(const char *name) {
    return reinterpret_cast<F>(export_address(name));
}

// Calls an export with the given result type ("double", "int", "pointer",
// "void"); the result is returned as a double (0 for "void"; a pointer
// result is returned through `pointer`).
double call_export(const std::string &name, const std::string &result, ArgList &list,
                   void **pointer = nullptr);

// One row of the catalogue.
struct Entry {
    std::string export_name, routine;
    int args;
    std::string result, group;
    bool record, substitutes, present;
    std::vector<std::string> params;
};
const std::vector<Entry> &catalogue();
const Entry &entry(const std::string &export_name);

// A record with printing off and the given handler.
KivError quiet_record(void (*handler)(const char *, int, const char *) = nullptr);

// The handler value that stands for a script function in a record.
inline void (*as_handler(ScriptFunction &function))(const char *, int, const char *) {
    return reinterpret_cast<void (*)(const char *, int, const char *)>(
        static_cast<void *>(&function));
}

}  // namespace kiv_test
