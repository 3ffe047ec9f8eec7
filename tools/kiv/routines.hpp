// The routines that `kiv <code> ARGS...` can call: for each, the inputs it
// takes from the command line (in the order of its C parameter list, with
// the output arguments left out) and a call that runs it and collects its
// outputs by name.
#pragma once

#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "kiv.h"

namespace kiv::tool {

enum class ArgKind {
    Int,         // a decimal integer
    Double,      // a number (nan and inf allowed)
    Tail,        // Kiv_Tail member by name, or its value
    SumSquare,   // Kiv_SumSquare member by name, or its value
    Order,       // Kiv_OrderType member by name, or its value
    Doubles,     // array of doubles: @file, - (stdin) or 1,2,3
    OptDoubles,  // as Doubles, or "null" for a null pointer
    Ints,        // array of integers
    OptInts,     // as Ints, or "null"
};

struct ArgSpec {
    const char *name;
    ArgKind kind;
};

// The parsed command-line inputs of one call, by position.
class Inputs {
public:
    using Value = std::variant<int, double, std::vector<double>, std::vector<int>, std::monostate>;
    explicit Inputs(std::vector<Value> values) : values_(std::move(values)) {}

    int integer(std::size_t k) const { return std::get<int>(values_[k]); }
    double real(std::size_t k) const { return std::get<double>(values_[k]); }
    // The array at position k, which must hold at least `need` elements
    // (a negative need counts as 0); null for an optional array given as
    // "null". A shorter array is a usage error naming `name`.
    const double *doubles(std::size_t k, const char *name, long long need) const;
    const int *ints(std::size_t k, const char *name, long long need) const;

private:
    std::vector<Value> values_;
};

// The outputs of one call, printed by name in the order they were added.
class Outputs {
public:
    void scalar(const char *name, double value);
    void integer(const char *name, long value);
    void vector(const char *name, std::span<const double> values);
    void vector(const char *name, std::span<const int> values);
    // rows x cols block of a row-major matrix with row stride `stride`.
    void matrix(const char *name, const double *values, int rows, int cols, int stride);
    void print(std::FILE *out) const;

private:
    struct Item {
        std::string name;
        std::vector<std::string> cells;  // one per value
        int columns = 0;                 // > 0 for a matrix
        bool is_scalar = false;
    };
    std::vector<Item> items_;
};

// A work array of `count` doubles (at least 1), filled with NaN; counts
// beyond 2^26 are refused as a usage error.
std::vector<double> out_doubles(long long count);
std::vector<int> out_ints(long long count);

struct RoutineSpec {
    const char *name;
    const char *summary;
    std::vector<ArgSpec> inputs;
    bool has_record;  // takes a KivError record
    void (*call)(const Inputs &in, Outputs &out, KivError *fail);
};

const std::vector<RoutineSpec> &routines();
const RoutineSpec *find_routine(std::string_view name);

// Parses the command-line words of `spec`'s inputs.
Inputs parse_inputs(const RoutineSpec &spec, const std::vector<std::string> &words);

// "g01eac TAIL X" with the argument kinds spelled out.
std::string usage_of(const RoutineSpec &spec);

// The name of an enumeration member, or its value as text.
std::string enum_name(int value);

}  // namespace kiv::tool
