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
    Enum,        // a member of the enumeration enum_type by name, or its value
    Text,        // a word, passed as a C string
    Doubles,     // array of doubles: @file, - (stdin) or 1,2,3
    OptDoubles,  // as Doubles, or "null" for a null pointer
    Ints,        // array of integers
    OptInts,     // as Ints, or "null"
};

struct ArgSpec {
    const char *name;
    ArgKind kind;
    const char *enum_type = nullptr;  // "Kiv_Tail" for ArgKind::Enum
    int sizes = -1;                   // Int: the input array whose length "-" stands for
    const char *members = nullptr;    // Enum: the accepted members, "A,B" (null: all)
};

// A member of an enumeration of kiv.h.
struct EnumMember {
    const char *name;
    int value;
    const char *type;
};

// The parsed command-line inputs of one call, by position.
class Inputs {
public:
    using Value = std::variant<int, double, std::vector<double>, std::vector<int>, std::monostate,
                               std::string>;
    explicit Inputs(std::vector<Value> values) : values_(std::move(values)) {}

    int integer(std::size_t k) const { return std::get<int>(values_[k]); }
    double real(std::size_t k) const { return std::get<double>(values_[k]); }
    const char *text(std::size_t k) const { return std::get<std::string>(values_[k]).c_str(); }
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
    // Everything print() would write, as one text.
    std::string text() const;

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

// Helpers of the array-length expressions of the routine records.
// Elements read from a matrix of `rows` rows of `cols` values with row
// stride `stride` (0 when either count is not positive).
inline long long span_of(long long rows, long long cols, long long stride) {
    if (rows <= 0 || cols <= 0) return 0;
    return (rows - 1) * (stride > 0 ? stride : 0) + cols;
}
// Elements of a packed triangle of order m.
inline long long packed(long long m) {
    return m > 0 ? m * (m + 1) / 2 : 0;
}
inline long long nonneg(long long n) {
    return n > 0 ? n : 0;
}
// The first `count` elements (clamped to the vector's size).
template <typename T>
std::span<const T> first(const std::vector<T> &values, long long count) {
    const long long size = static_cast<long long>(values.size());
    const auto n = static_cast<std::size_t>(count < 0 ? 0 : count > size ? size : count);
    return {values.data(), n};
}
// A copy of `count` input elements to be written by the routine (at least
// one element, so that data() is never null).
template <typename T>
std::vector<T> copy_of(const T *given, long long count) {
    std::vector<T> copy(given, given + nonneg(count));
    if (copy.empty()) copy.push_back(T{});
    return copy;
}

struct RoutineSpec {
    const char *name;
    const char *summary;
    std::vector<ArgSpec> inputs;
    bool has_record;  // takes a KivError record
    void (*call)(const Inputs &in, Outputs &out, KivError *fail);
    const char *example;    // its arguments in a typical call ("" for none)
    const char *arguments;  // "name: meaning; ..." for every parameter
    const char *signature;  // the C prototype
    const char *faults;     // "condition: CODE; ..." in the order checked
};

// Generated from the routine records (routine_table.cpp): every routine the
// tool can call, by name, and every enumeration member of kiv.h.
const std::vector<RoutineSpec> &routines();
const std::vector<EnumMember> &enum_members();
const RoutineSpec *find_routine(std::string_view name);

// Parses the command-line words of `spec`'s inputs.
Inputs parse_inputs(const RoutineSpec &spec, const std::vector<std::string> &words);

// "g01eac TAIL X" with the argument kinds spelled out.
std::string usage_of(const RoutineSpec &spec);

// The name of an enumeration member, or its value as text.
std::string enum_name(int value);

}  // namespace kiv::tool
