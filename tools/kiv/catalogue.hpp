// The export catalogue of the interpreter module, for `kiv list`.
#pragma once

#include <array>
#include <string_view>

namespace kiv::tool {

struct CatalogueEntry {
    std::string_view export_name;  // "g01eac_chdl"
    std::string_view routine;      // "g01eac": the routine behind the export
    int arguments;                 // arguments taken off the interpreter's list
    bool has_routine;              // false for the exports with no routine behind them
};

const std::array<CatalogueEntry, 344> &catalogue();

// True when `routine` is declared in kiv.h (the list is extracted from the
// header at build time).
bool declared_in_header(std::string_view routine);

}  // namespace kiv::tool
