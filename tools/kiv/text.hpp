// Text helpers of the kiv tool: strict number parsing, reading number lists
// from files or standard input, round-trip formatting and aligned tables.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::tool {

// A mistake in what the user typed or supplied: printed as "kiv: <what>"
// with exit status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Parses the whole of `text` as a double ("nan", "inf" and "-inf" allowed).
// Returns false when any character is left over or the text is empty.
bool parse_double(std::string_view text, double &value);

// Parses the whole of `text` as a decimal int within the range of int.
bool parse_int(std::string_view text, int &value);

// A double with enough digits to read back the same double (%.17g).
std::string round_trip(double value);

// A double to `digits` significant digits (%.*g).
std::string significant(double value, int digits);

// Reads the numbers of `source`: "-" is standard input, "@path" a file,
// anything else a list separated by commas ("1,2.5,3"). In files, numbers
// are separated by blanks, commas or line breaks and "#" starts a comment.
// Errors name the file and the line.
std::vector<double> read_numbers(const std::string &source);

// The columns a UTF-8 text takes on a terminal (wide East Asian characters
// count two).
std::size_t display_width(std::string_view text);

// A table printed with aligned columns: numbers right-aligned, a first
// column of labels left-aligned, a rule under the heading.
class Table {
public:
    explicit Table(std::vector<std::string> heading);
    void add_row(std::vector<std::string> row);
    void print(std::FILE *out, const std::string &indent = "  ") const;

private:
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace kiv::tool
