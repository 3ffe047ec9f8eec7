// `kiv describe FILE.csv`: descriptive statistics of every numeric column
// (g01aac), the Pearson (g02bxc), Kendall and Spearman (g02brc) correlation
// matrices and the autocorrelations of each column (g13abc), for a delimited
// text file whose first line names the columns.
//
// Reading: the separator is detected from the header line (comma, semicolon
// or tab, whichever occurs most outside quotes) or given with --sep; decimal
// commas with --decimal ,; a UTF-8 byte-order mark is dropped; "-" reads
// standard input. Empty fields and NA, NaN, na, nan are missing values: they
// are counted per column and left out of that column's statistics, and the
// correlations of a pair of columns use the rows where both are present
// (pairwise-complete observations). A column with a field that is neither a
// number nor missing is a text column: it is listed as skipped, as is a
// leading column of row names. A statistic that does not exist (the standard
// deviation of one value, a correlation with a constant column) prints as NA
// with a note, never as 0. --format csv or json writes every table in a
// machine-readable form.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <limits>
#include <sstream>

#include "commands.hpp"
#include "kiv.h"
#include "text.hpp"

namespace kiv::tool {

namespace {

constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();

struct Options {
    std::string path;
    int lags = 10;
    int digits = 10;
    char separator = 0;  // 0: detect
    char decimal = '.';
    std::string format = "table";
};

struct Column {
    std::string name;
    std::vector<double> values;  // NaN where missing
    int missing = 0;
};

struct Dataset {
    std::vector<Column> columns;
    std::vector<std::string> skipped;  // text and row-name columns, with the reason
    int rows = 0;
};

std::string trim(const std::string &text) {
    const auto begin = text.find_first_not_of(" \t");
    if (begin == std::string::npos) return "";
    return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

// Splits a line at `separator`; a field may be quoted with double quotes, a
// doubled quote standing for one.
std::vector<std::string> split_fields(const std::string &line, char separator,
                                      const std::string &where) {
    std::vector<std::string> fields;
    std::string field;
    bool quoted = false, was_quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted) {
            if (c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
                field += '"';
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == '"' && trim(field).empty()) {
            quoted = was_quoted = true;
            field.clear();
        } else if (c == separator) {
            fields.push_back(was_quoted ? field : trim(field));
            field.clear();
            was_quoted = false;
        } else {
            field += c;
        }
    }
    if (quoted) throw UsageError(where + ": unterminated quoted field");
    fields.push_back(was_quoted ? field : trim(field));
    return fields;
}

// The separator that occurs most often outside quotes in the header line
// (comma when none does; never comma with decimal commas).
char detect_separator(const std::string &header, char decimal) {
    int counts[3] = {0, 0, 0};
    const char candidates[3] = {',', ';', '\t'};
    bool quoted = false;
    for (char c : header) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        for (int k = 0; k < 3; ++k) counts[k] += c == candidates[k];
    }
    if (decimal == ',') counts[0] = -1;  // decimal commas: ';' or tab
    int best = 0;
    for (int k = 1; k < 3; ++k)
        if (counts[k] > counts[best]) best = k;
    return candidates[best];
}

bool is_missing(const std::string &field) {
    return field.empty() || field == "NA" || field == "NaN" || field == "na" || field == "nan";
}

bool parse_field(std::string field, char decimal, double &value) {
    if (decimal != '.') {
        if (field.find('.') != std::string::npos) return false;
        std::replace(field.begin(), field.end(), decimal, '.');
    }
    return parse_double(field, value);
}

struct RawTable {
    std::vector<std::string> names;
    std::vector<std::vector<std::string>> rows;
    long header_line = 0;
};

RawTable read_fields(std::istream &in, const std::string &name, Options &options) {
    RawTable raw;
    std::string line;
    long line_number = 0;
    while (std::getline(in, line)) {
        ++line_number;
        if (line_number == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (trim(line).empty()) continue;
        const std::string where = name + ":" + std::to_string(line_number);
        if (raw.header_line == 0) {
            if (options.separator == 0) options.separator = detect_separator(line, options.decimal);
            raw.header_line = line_number;
            raw.names = split_fields(line, options.separator, where);
            continue;
        }
        auto fields = split_fields(line, options.separator, where);
        if (fields.size() != raw.names.size())
            throw UsageError(where + ": " + std::to_string(fields.size()) +
                             " fields, but the header on line " + std::to_string(raw.header_line) +
                             " has " + std::to_string(raw.names.size()));
        if (raw.rows.size() == (1u << 24)) throw UsageError(where + ": too many rows");
        raw.rows.push_back(std::move(fields));
    }
    if (raw.header_line == 0) throw UsageError(name + ": the file is empty");
    if (raw.rows.empty())
        throw UsageError(name + ": no data rows after the header on line " +
                         std::to_string(raw.header_line));
    return raw;
}

Dataset read_dataset(Options &options) {
    RawTable raw;
    if (options.path == "-") {
        raw = read_fields(std::cin, "<stdin>", options);
    } else {
        std::ifstream file(options.path, std::ios::binary);
        if (!file) throw UsageError("cannot open '" + options.path + "'");
        raw = read_fields(file, options.path, options);
    }
    Dataset data;
    data.rows = static_cast<int>(raw.rows.size());
    for (std::size_t j = 0; j < raw.names.size(); ++j) {
        Column column;
        column.name = raw.names[j].empty() ? "column " + std::to_string(j + 1) : raw.names[j];
        std::string text_field;
        for (const auto &row : raw.rows) {
            double value = 0.0;
            if (is_missing(row[j])) {
                column.values.push_back(kMissing);
                ++column.missing;
            } else if (parse_field(row[j], options.decimal, value)) {
                column.values.push_back(value);
            } else {
                text_field = row[j];
                break;
            }
        }
        if (text_field.empty()) {
            data.columns.push_back(std::move(column));
        } else {
            const bool row_names = j == 0 && raw.names[j].empty();
            data.skipped.push_back(column.name +
                                   (row_names ? " (row names)" : " (text: '" + text_field + "')"));
        }
    }
    if (data.columns.empty()) throw UsageError(options.path + ": no numeric column");
    return data;
}

// ---- output: aligned tables, or CSV / JSON records ---------------------------

struct Section {
    std::string title;
    std::vector<std::string> heading;
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> notes;
};

std::string json_string(const std::string &text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c < 0x20) {
            char buffer[8];
            std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
            out += buffer;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

std::string json_cell(const std::string &cell) {
    double value = 0.0;
    if (cell == "NA" || cell == "-") return "null";
    if (parse_double(cell, value) && std::isfinite(value)) return cell;
    return json_string(cell);
}

std::string csv_cell(const std::string &cell) {
    if (cell.find_first_of(",\"\n") == std::string::npos) return cell;
    std::string out = "\"";
    for (char c : cell) out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + "\"";
}

void print_sections(const std::vector<Section> &sections, const std::string &format) {
    if (format == "json") {
        std::printf("{\n");
        for (std::size_t s = 0; s < sections.size(); ++s) {
            const Section &section = sections[s];
            std::printf("  %s: {\n    \"columns\": [", json_string(section.title).c_str());
            for (std::size_t j = 0; j < section.heading.size(); ++j)
                std::printf("%s%s", j ? ", " : "", json_string(section.heading[j]).c_str());
            std::printf("],\n    \"rows\": [");
            for (std::size_t i = 0; i < section.rows.size(); ++i) {
                std::printf("%s\n      [", i ? "," : "");
                for (std::size_t j = 0; j < section.rows[i].size(); ++j)
                    std::printf("%s%s", j ? ", " : "", json_cell(section.rows[i][j]).c_str());
                std::printf("]");
            }
            std::printf("],\n    \"notes\": [");
            for (std::size_t k = 0; k < section.notes.size(); ++k)
                std::printf("%s%s", k ? ", " : "", json_string(section.notes[k]).c_str());
            std::printf("]\n  }%s\n", s + 1 < sections.size() ? "," : "");
        }
        std::printf("}\n");
        return;
    }
    for (std::size_t s = 0; s < sections.size(); ++s) {
        const Section &section = sections[s];
        if (format == "csv") {
            // One block per table: a line naming it, the heading, the rows.
            std::printf("%s# %s\n", s ? "\n" : "", section.title.c_str());
            for (const auto *row : {&section.heading}) {
                for (std::size_t j = 0; j < row->size(); ++j)
                    std::printf("%s%s", j ? "," : "", csv_cell((*row)[j]).c_str());
                std::printf("\n");
            }
            for (const auto &row : section.rows) {
                for (std::size_t j = 0; j < row.size(); ++j)
                    std::printf("%s%s", j ? "," : "",
                                csv_cell(row[j] == "-" ? "NA" : row[j]).c_str());
                std::printf("\n");
            }
            for (const auto &note : section.notes) std::printf("# note: %s\n", note.c_str());
            continue;
        }
        std::printf("%s%s\n", s ? "\n" : "", section.title.c_str());
        if (!section.rows.empty()) {
            Table table(section.heading);
            for (const auto &row : section.rows) table.add_row(row);
            table.print(stdout);
        }
        for (const auto &note : section.notes) std::printf("  note: %s\n", note.c_str());
    }
}

// ---- the statistics ----------------------------------------------------------

std::vector<double> present_values(const Column &column) {
    std::vector<double> values;
    for (double v : column.values)
        if (!std::isnan(v)) values.push_back(v);
    return values;
}

Section describe_columns(const Dataset &data, int digits) {
    Section section{"Descriptive statistics (g01aac)",
                    {"column", "n", "missing", "mean", "sd", "skewness", "kurtosis", "min", "max"},
                    {},
                    {"definitions: sd = sqrt(m2), skewness = m3 / sd^3, kurtosis = m4 / sd^4 - 3, "
                     "with m_k = sum (x - mean)^k / (n - 1) (docs/definitions.md)"}};
    bool single = false;
    for (const Column &column : data.columns) {
        const std::vector<double> x = present_values(column);
        const int n = static_cast<int>(x.size());
        const std::string missing = std::to_string(column.missing);
        if (n == 0) {
            section.rows.push_back({column.name, "0", missing, "NA", "NA", "NA", "NA", "NA", "NA"});
            section.notes.push_back(column.name + ": no values");
            continue;
        }
        int nvalid = 0;
        double mean = 0, sd = 0, skew = 0, kurt = 0, lo = 0, hi = 0, wsum = 0;
        KivError fail = quiet_record();
        g01aac(n, x.data(), nullptr, &nvalid, &mean, &sd, &skew, &kurt, &lo, &hi, &wsum, &fail);
        auto f = [&](double v) { return significant(v, digits); };
        if (fail.code == NE_CASES_ONE || n == 1) {
            single = true;
            section.rows.push_back(
                {column.name, "1", missing, f(mean), "NA", "NA", "NA", f(lo), f(hi)});
            continue;
        }
        if (fail.code != 0) {
            section.rows.push_back(
                {column.name, std::to_string(n), missing, "NA", "NA", "NA", "NA", "NA", "NA"});
            section.notes.push_back(column.name + ": " + one_line(fail));
            continue;
        }
        const bool constant = sd == 0.0;
        section.rows.push_back({column.name, std::to_string(nvalid), missing, f(mean), f(sd),
                                constant ? "NA" : f(skew), constant ? "NA" : f(kurt), f(lo),
                                f(hi)});
        if (constant)
            section.notes.push_back(column.name + ": constant: skewness and kurtosis do not exist");
    }
    if (single) section.notes.push_back("sd, skewness and kurtosis need at least two values");
    return section;
}

// Tukey's five-number summary of each column's present values (g01alc).
Section describe_five_numbers(const Dataset &data, int digits) {
    Section section{"Five-number summary (g01alc, Tukey's hinges)",
                    {"column", "min", "lower hinge", "median", "upper hinge", "max"},
                    {},
                    {}};
    for (const Column &column : data.columns) {
        const std::vector<double> x = present_values(column);
        if (x.empty()) {
            section.rows.push_back({column.name, "NA", "NA", "NA", "NA", "NA"});
            continue;
        }
        double res[5];
        KivError fail = quiet_record();
        g01alc(static_cast<int>(x.size()), x.data(), res, &fail);
        std::vector<std::string> row{column.name};
        for (double v : res) row.push_back(fail.code == 0 ? significant(v, digits) : "NA");
        section.rows.push_back(row);
        if (fail.code != 0) section.notes.push_back(column.name + ": " + one_line(fail));
    }
    return section;
}

// The rows where both columns are present.
int complete_pairs(const Column &a, const Column &b, std::vector<double> &xy) {
    xy.clear();
    for (std::size_t i = 0; i < a.values.size(); ++i)
        if (!std::isnan(a.values[i]) && !std::isnan(b.values[i])) {
            xy.push_back(a.values[i]);
            xy.push_back(b.values[i]);
        }
    return static_cast<int>(xy.size() / 2);
}

bool is_constant(const std::vector<double> &xy, int which) {
    for (std::size_t i = 2; i < xy.size(); i += 2)
        if (xy[i + which] != xy[static_cast<std::size_t>(which)]) return false;
    return true;
}

// The three correlation matrices, each from the pairwise-complete rows of
// every pair of columns.
std::vector<Section> describe_correlations(const Dataset &data, int digits) {
    const std::size_t m = data.columns.size();
    std::vector<std::string> heading{""};
    for (const Column &column : data.columns) heading.push_back(column.name);
    Section pearson{
        "Pearson correlation (g02bxc, pairwise-complete observations)", heading, {}, {}};
    Section kendall{
        "Kendall rank correlation (g02brc, pairwise-complete observations)", heading, {}, {}};
    Section spearman{
        "Spearman rank correlation (g02brc, pairwise-complete observations)", heading, {}, {}};
    bool constant_note = false, few_note = false;
    std::vector<std::vector<std::string>> p(m, std::vector<std::string>(m, "NA")), k = p, s = p;
    std::vector<double> xy;
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = i; j < m; ++j) {
            const int n = complete_pairs(data.columns[i], data.columns[j], xy);
            if (n < 2) {
                few_note = true;
                continue;
            }
            if (is_constant(xy, 0) || is_constant(xy, 1)) {
                constant_note = true;
                continue;
            }
            if (i == j) {
                p[i][i] = k[i][i] = s[i][i] = significant(1.0, digits);
                continue;
            }
            const int sx[2] = {1, 1};
            double sw = 0, mean[2], sd[2], r[4], v[4], corr[4];
            KivError fail = quiet_record();
            g02bxc(n, 2, xy.data(), 2, sx, nullptr, &sw, mean, sd, r, 2, v, 2, &fail);
            if (fail.code == 0) p[i][j] = p[j][i] = significant(r[1], digits);
            fail = quiet_record();
            g02brc(n, 2, xy.data(), 2, nullptr, nullptr, corr, 2, &fail);
            if (fail.code == 0) {
                // Kendall's coefficient lies below the diagonal, Spearman's above.
                k[i][j] = k[j][i] = significant(corr[2], digits);
                s[i][j] = s[j][i] = significant(corr[1], digits);
            }
        }
    for (std::size_t i = 0; i < m; ++i) {
        std::vector<std::string> row{data.columns[i].name};
        pearson.rows.push_back(row);
        kendall.rows.push_back(row);
        spearman.rows.push_back(row);
        for (std::size_t j = 0; j < m; ++j) {
            pearson.rows.back().push_back(p[i][j]);
            kendall.rows.back().push_back(k[i][j]);
            spearman.rows.back().push_back(s[i][j]);
        }
    }
    for (Section *section : {&pearson, &kendall, &spearman}) {
        if (constant_note) section->notes.push_back("NA: a constant column has no correlation");
        if (few_note) section->notes.push_back("NA: fewer than two complete pairs");
    }
    return {pearson, kendall, spearman};
}

// Autocorrelations of each column's present values, in order (missing values
// are left out of the series, which the note says).
Section describe_autocorrelation(const Dataset &data, int lags, int digits) {
    int longest = 0;
    for (const Column &column : data.columns)
        longest = std::max(longest, static_cast<int>(present_values(column).size()));
    const int nk = std::min(lags, longest - 1);
    Section section{
        "Autocorrelation (g13abc), lags 1 to " + std::to_string(std::max(nk, 1)), {"lag"}, {}, {}};
    if (nk < lags && nk >= 1)
        section.notes.push_back("lags limited to " + std::to_string(nk) + ": the series have " +
                                std::to_string(longest) + " values");
    std::vector<std::vector<std::string>> cells;
    for (const Column &column : data.columns) {
        section.heading.push_back(column.name);
        const std::vector<double> x = present_values(column);
        const int n = static_cast<int>(x.size());
        std::vector<std::string> values(static_cast<std::size_t>(std::max(nk, 0)), "NA");
        const int own = std::min(nk, n - 1);
        const bool constant =
            n > 0 && std::all_of(x.begin(), x.end(), [&](double v) { return v == x[0]; });
        if (constant && own >= 1) {
            section.notes.push_back(column.name + ": constant: no autocorrelation");
        } else if (own >= 1) {
            std::vector<double> r(static_cast<std::size_t>(own));
            double xm = 0.0, xv = 0.0, stat = 0.0;
            KivError fail = quiet_record();
            g13abc(x.data(), n, own, &xm, &xv, r.data(), &stat, &fail);
            if (fail.code == 0)
                for (int k = 0; k < own; ++k) values[k] = significant(r[k], digits);
            else
                section.notes.push_back(column.name + ": " + one_line(fail));
        }
        if (column.missing > 0)
            section.notes.push_back(column.name + ": " + std::to_string(column.missing) +
                                    " missing values left out of the series");
        cells.push_back(values);
    }
    for (int k = 0; k < nk; ++k) {
        std::vector<std::string> row{std::to_string(k + 1)};
        for (const auto &column : cells) row.push_back(column[k]);
        section.rows.push_back(row);
    }
    return section;
}

int option_value(const std::vector<std::string> &args, std::size_t &k, int lowest, int highest) {
    const std::string &option = args[k];
    if (k + 1 >= args.size()) throw UsageError(option + " needs a value");
    int value = 0;
    if (!parse_int(args[++k], value) || value < lowest || value > highest)
        throw UsageError(option + " must be an integer from " + std::to_string(lowest) + " to " +
                         std::to_string(highest) + ", not '" + args[k] + "'");
    return value;
}

std::string word_after(const std::vector<std::string> &args, std::size_t &k) {
    if (k + 1 >= args.size()) throw UsageError(args[k] + " needs a value");
    return args[++k];
}

}  // namespace

const char *describe_usage =
    "usage: kiv describe FILE.csv|- [--lags N] [--digits N] [--sep ,|;|tab]\n"
    "                    [--decimal .|,] [--format table|csv|json]\n";

int run_describe(const std::vector<std::string> &args) {
    Options options;
    for (std::size_t k = 0; k < args.size(); ++k) {
        const std::string &arg = args[k];
        if (arg == "--help" || arg == "-h") {
            std::fputs(describe_usage, stdout);
            return 0;
        } else if (arg == "--lags") {
            options.lags = option_value(args, k, 1, 1000000);
        } else if (arg == "--digits") {
            options.digits = option_value(args, k, 1, 17);
        } else if (arg == "--sep") {
            const std::string sep = word_after(args, k);
            if (sep == "tab" || sep == "\\t" || sep == "\t")
                options.separator = '\t';
            else if (sep == "," || sep == ";")
                options.separator = sep[0];
            else
                throw UsageError("--sep must be ',', ';' or 'tab', not '" + sep + "'");
        } else if (arg == "--decimal") {
            const std::string mark = word_after(args, k);
            if (mark != "." && mark != ",")
                throw UsageError("--decimal must be '.' or ',', not '" + mark + "'");
            options.decimal = mark[0];
        } else if (arg == "--format") {
            options.format = word_after(args, k);
            if (options.format != "table" && options.format != "csv" && options.format != "json")
                throw UsageError("--format must be table, csv or json, not '" + options.format +
                                 "'");
        } else if (arg.starts_with("--")) {
            throw UsageError("describe: unknown option '" + arg + "'");
        } else if (options.path.empty()) {
            options.path = arg;
        } else {
            throw UsageError("describe takes one file");
        }
    }
    if (options.path.empty()) throw UsageError(describe_usage);
    if (options.decimal == ',' && options.separator == ',')
        throw UsageError("--decimal , needs another separator (--sep ; or --sep tab)");
    const Dataset data = read_dataset(options);
    const std::string name = options.path == "-" ? "<stdin>" : options.path;
    std::vector<Section> sections;
    sections.push_back(describe_columns(data, options.digits));
    sections.push_back(describe_five_numbers(data, options.digits));
    for (auto &section : describe_correlations(data, options.digits)) sections.push_back(section);
    sections.push_back(describe_autocorrelation(data, options.lags, options.digits));
    if (options.format == "table") {
        std::printf("%s: %d rows, %zu numeric columns\n", name.c_str(), data.rows,
                    data.columns.size());
        for (const auto &skipped : data.skipped) std::printf("  skipped: %s\n", skipped.c_str());
        std::printf("\n");
    } else {
        Section file{"File", {"file", "rows", "numeric columns", "skipped"}, {}, {}};
        std::string skipped;
        for (const auto &s : data.skipped) skipped += (skipped.empty() ? "" : "; ") + s;
        file.rows.push_back(
            {name, std::to_string(data.rows), std::to_string(data.columns.size()), skipped});
        sections.insert(sections.begin(), file);
    }
    print_sections(sections, options.format);
    return 0;
}

}  // namespace kiv::tool
