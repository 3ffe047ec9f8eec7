// The export catalogue of the interpreter module, for `kiv list`.
#pragma once

#include <string_view>
#include <vector>

namespace kiv::tool {

struct CatalogueEntry {
    std::string_view export_name;  // "g01eac_chdl"
    std::string_view routine;      // "g01eac": the routine behind the export
    int arguments;                 // arguments taken off the interpreter's list
    bool has_routine;              // false for the exports with no routine behind them
    bool present;                  // the routine is in this build
};

// Generated from the routine records (catalogue.cpp).
const std::vector<CatalogueEntry> &catalogue();

}  // namespace kiv::tool
