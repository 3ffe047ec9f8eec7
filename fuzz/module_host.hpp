// A minimal stand-in for the interpreter, for fuzzing the module libkiv.dl:
// the four runtime functions that the module imports (exported from the
// harness), argument lists of value addresses with no slack past their end,
// and script error handlers that Ch_CallFuncByAddr reaches.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kiv::fuzz {

struct ArgumentList {
    std::vector<void *> addresses;  // exactly the arguments: a fetch past them is a finding
    std::size_t fetched = 0;
    int starts = 0;
    int ends = 0;
    int script_calls = 0;
    int last_script_code = -1;
    std::string last_script_routine;
};

// Handle to the loaded module and one of its exports (nullptr if absent).
void *module_symbol(const char *name);

// The address that stands for a script function in a record's handler.
void *script_handler_token();

}  // namespace kiv::fuzz
