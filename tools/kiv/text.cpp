// Text helpers of the kiv tool (see text.hpp).
#include "text.hpp"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

namespace kiv::tool {

bool parse_double(std::string_view text, double &value) {
    if (text.empty() || text.size() > 200) return false;
    const std::string copy(text);
    if (std::isspace(static_cast<unsigned char>(copy.front()))) return false;
    char *end = nullptr;
    errno = 0;
    const double parsed = std::strtod(copy.c_str(), &end);
    if (end != copy.c_str() + copy.size()) return false;
    // Hexadecimal input is accepted as strtod reads it; overflow to
    // infinity is refused, underflow to a subnormal or zero is kept.
    if (errno == ERANGE && std::isinf(parsed)) return false;
    value = parsed;
    return true;
}

bool parse_int(std::string_view text, int &value) {
    if (text.empty() || text.size() > 40) return false;
    const std::string copy(text);
    if (std::isspace(static_cast<unsigned char>(copy.front()))) return false;
    char *end = nullptr;
    errno = 0;
    const long long parsed = std::strtoll(copy.c_str(), &end, 10);
    if (end != copy.c_str() + copy.size() || errno == ERANGE) return false;
    if (parsed < INT_MIN || parsed > INT_MAX) return false;
    value = static_cast<int>(parsed);
    return true;
}

std::string round_trip(double value) {
    return significant(value, 17);
}

std::string significant(double value, int digits) {
    if (std::isnan(value)) return "nan";  // never "-nan": the sign of a NaN means nothing
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*g", digits, value);
    return buffer;
}

namespace {

// Splits one line of a number file into numbers, appending to `values`.
void parse_number_line(const std::string &line, const std::string &where,
                       std::vector<double> &values) {
    const std::string content = line.substr(0, line.find('#'));
    std::string token;
    auto flush = [&] {
        if (token.empty()) return;
        double value = 0.0;
        if (!parse_double(token, value))
            throw UsageError(where + ": not a number: '" + token + "'");
        values.push_back(value);
        token.clear();
    };
    for (char c : content) {
        if (c == ',' || c == ';' || std::isspace(static_cast<unsigned char>(c)))
            flush();
        else
            token += c;
    }
    flush();
}

std::vector<double> read_number_stream(std::istream &in, const std::string &name) {
    std::vector<double> values;
    std::string line;
    long line_number = 0;
    while (std::getline(in, line)) {
        ++line_number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        parse_number_line(line, name + ":" + std::to_string(line_number), values);
    }
    return values;
}

}  // namespace

std::vector<double> read_numbers(const std::string &source) {
    if (source == "-") return read_number_stream(std::cin, "<stdin>");
    if (!source.empty() && source.front() == '@') {
        const std::string path = source.substr(1);
        std::ifstream file(path);
        if (!file) throw UsageError("cannot open '" + path + "'");
        return read_number_stream(file, path);
    }
    std::vector<double> values;
    std::string token;
    std::istringstream list(source);
    while (std::getline(list, token, ',')) {
        double value = 0.0;
        if (!parse_double(token, value))
            throw UsageError("not a number: '" + token + "' in the list '" + source + "'");
        values.push_back(value);
    }
    if (values.empty()) throw UsageError("empty list of numbers");
    return values;
}

Table::Table(std::vector<std::string> heading) {
    rows_.push_back(std::move(heading));
}

void Table::add_row(std::vector<std::string> row) {
    rows_.push_back(std::move(row));
}

std::size_t display_width(std::string_view text) {
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const int length = byte < 0x80 ? 1 : byte >> 5 == 6 ? 2 : byte >> 4 == 14 ? 3 : 4;
        char32_t code = length == 1 ? byte : byte & (0x7F >> length);
        for (int k = 1; k < length && i + k < text.size(); ++k)
            code = (code << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        i += static_cast<std::size_t>(length);
        // East Asian wide and full-width characters take two columns.
        const bool wide =
            (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) ||
            (code >= 0xAC00 && code <= 0xD7A3) || (code >= 0xF900 && code <= 0xFAFF) ||
            (code >= 0xFE30 && code <= 0xFE4F) || (code >= 0xFF00 && code <= 0xFF60) ||
            (code >= 0xFFE0 && code <= 0xFFE6) || (code >= 0x20000 && code <= 0x3FFFD);
        width += wide ? 2 : 1;
    }
    return width;
}

void Table::print(std::FILE *out, const std::string &indent) const {
    std::vector<std::size_t> width;
    for (const auto &row : rows_) {
        if (row.size() > width.size()) width.resize(row.size(), 0);
        for (std::size_t j = 0; j < row.size(); ++j)
            width[j] = std::max(width[j], display_width(row[j]));
    }
    // The first column holds labels and is left-aligned, unless every entry
    // under the heading is a number.
    bool labels = false;
    for (std::size_t i = 1; i < rows_.size(); ++i) {
        double value = 0.0;
        if (!rows_[i].empty() && !parse_double(rows_[i][0], value)) labels = true;
    }
    auto print_row = [&](const std::vector<std::string> &row) {
        std::string line = indent;
        for (std::size_t j = 0; j < row.size(); ++j) {
            const std::string pad(width[j] - display_width(row[j]), ' ');
            if (j > 0) line += "  ";
            line += (j == 0 && labels) ? row[j] + pad : pad + row[j];
        }
        while (!line.empty() && line.back() == ' ') line.pop_back();
        std::fprintf(out, "%s\n", line.c_str());
    };
    print_row(rows_.front());
    std::size_t total = 0;
    for (std::size_t j = 0; j < width.size(); ++j) total += width[j] + (j > 0 ? 2 : 0);
    std::fprintf(out, "%s%s\n", indent.c_str(), std::string(total, '-').c_str());
    for (std::size_t i = 1; i < rows_.size(); ++i) print_row(rows_[i]);
}

}  // namespace kiv::tool
