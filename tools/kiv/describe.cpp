// `kiv describe FILE.csv`: descriptive statistics of every column (g01aac),
// the Pearson (g02bxc), Kendall and Spearman (g02brc) correlation matrices
// and the autocorrelations of each column (g13abc), for a CSV file whose
// first line names the columns.
#include <algorithm>
#include <fstream>

#include "commands.hpp"
#include "kiv.h"
#include "text.hpp"

namespace kiv::tool {

namespace {

struct Dataset {
    std::vector<std::string> names;
    std::vector<double> values;  // row-major, names.size() columns
    int rows = 0;
    int columns() const { return static_cast<int>(names.size()); }
};

std::string trim(const std::string &text) {
    const auto begin = text.find_first_not_of(" \t");
    if (begin == std::string::npos) return "";
    return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

// Splits a CSV line at commas; a field may be quoted with double quotes,
// a doubled quote standing for one.
std::vector<std::string> split_csv(const std::string &line, const std::string &where) {
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
        } else if (c == ',') {
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

Dataset read_csv(const std::string &path) {
    std::ifstream file(path);
    if (!file) throw UsageError("cannot open '" + path + "'");
    Dataset data;
    std::string line;
    long line_number = 0, header_line = 0;
    while (std::getline(file, line)) {
        ++line_number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (trim(line).empty()) continue;
        const std::string where = path + ":" + std::to_string(line_number);
        auto fields = split_csv(line, where);
        if (header_line == 0) {
            header_line = line_number;
            for (std::size_t j = 0; j < fields.size(); ++j)
                data.names.push_back(fields[j].empty() ? "column " + std::to_string(j + 1)
                                                       : fields[j]);
            continue;
        }
        if (fields.size() != data.names.size())
            throw UsageError(where + ": " + std::to_string(fields.size()) +
                             " fields, but the header on line " + std::to_string(header_line) +
                             " has " + std::to_string(data.names.size()));
        for (std::size_t j = 0; j < fields.size(); ++j) {
            double value = 0.0;
            if (!parse_double(fields[j], value))
                throw UsageError(where + ": column '" + data.names[j] + "': not a number: '" +
                                 fields[j] + "'");
            data.values.push_back(value);
        }
        if (data.rows == 1 << 24) throw UsageError(where + ": too many rows");
        ++data.rows;
    }
    if (header_line == 0) throw UsageError(path + ": the file is empty");
    if (data.rows == 0)
        throw UsageError(path + ": no data rows after the header on line " +
                         std::to_string(header_line));
    return data;
}

void print_matrix(const Dataset &data, const std::vector<double> &matrix, int digits) {
    std::vector<std::string> heading{""};
    heading.insert(heading.end(), data.names.begin(), data.names.end());
    Table table(heading);
    const int m = data.columns();
    for (int i = 0; i < m; ++i) {
        std::vector<std::string> row{data.names[i]};
        for (int j = 0; j < m; ++j) row.push_back(significant(matrix[i * m + j], digits));
        table.add_row(row);
    }
    table.print(stdout);
}

void describe_columns(const Dataset &data, int digits) {
    std::printf("Descriptive statistics (g01aac)\n");
    Table table({"column", "n", "mean", "sd", "skewness", "kurtosis", "min", "max"});
    const int n = data.rows, m = data.columns();
    std::vector<double> column(static_cast<std::size_t>(n));
    std::vector<std::string> notes;
    for (int j = 0; j < m; ++j) {
        for (int i = 0; i < n; ++i) column[i] = data.values[static_cast<std::size_t>(i) * m + j];
        int nvalid = 0;
        double mean = 0, sd = 0, skew = 0, kurt = 0, lo = 0, hi = 0, wsum = 0;
        KivError fail = quiet_record();
        g01aac(n, column.data(), nullptr, &nvalid, &mean, &sd, &skew, &kurt, &lo, &hi, &wsum,
               &fail);
        if (fail.code != 0 && fail.code != NE_CASES_ONE) {
            table.add_row({data.names[j], "-", "-", "-", "-", "-", "-", "-"});
            notes.push_back(data.names[j] + ": " + one_line(fail));
            continue;
        }
        auto f = [&](double v) { return significant(v, digits); };
        table.add_row({data.names[j], std::to_string(nvalid), f(mean), f(sd), f(skew), f(kurt),
                       f(lo), f(hi)});
    }
    table.print(stdout);
    for (const auto &note : notes) std::printf("  note: %s\n", note.c_str());
}

void describe_pearson(const Dataset &data, int digits) {
    std::printf("\nPearson correlation (g02bxc)\n");
    const int n = data.rows, m = data.columns();
    std::vector<int> sx(static_cast<std::size_t>(m), 1);
    std::vector<double> mean(m), sd(m), r(static_cast<std::size_t>(m) * m),
        v(static_cast<std::size_t>(m) * m);
    double sw = 0.0;
    KivError fail = quiet_record();
    g02bxc(n, m, data.values.data(), m, sx.data(), nullptr, &sw, mean.data(), sd.data(), r.data(),
           m, v.data(), m, &fail);
    if (fail.code != 0 && fail.code != NE_VAR_EQ_ZERO) {
        std::printf("  not computed: %s\n", one_line(fail).c_str());
        return;
    }
    print_matrix(data, r, digits);
    if (fail.code == NE_VAR_EQ_ZERO)
        std::printf("  note: a column has zero variance; its correlations are shown as 0\n");
}

void describe_ranks(const Dataset &data, int digits) {
    std::printf("\nKendall rank correlation (g02brc)\n");
    const int n = data.rows, m = data.columns();
    std::vector<double> corr(static_cast<std::size_t>(m) * m);
    KivError fail = quiet_record();
    g02brc(n, m, data.values.data(), m, nullptr, nullptr, corr.data(), m, &fail);
    if (fail.code != 0) {
        std::printf("  not computed: %s\n", one_line(fail).c_str());
        std::printf("\nSpearman rank correlation (g02brc)\n  not computed\n");
        return;
    }
    // Kendall's coefficients lie below the diagonal, Spearman's above it.
    std::vector<double> kendall(corr), spearman(corr);
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < i; ++j) {
            kendall[j * m + i] = corr[i * m + j];
            spearman[i * m + j] = corr[j * m + i];
        }
    print_matrix(data, kendall, digits);
    std::printf("\nSpearman rank correlation (g02brc)\n");
    print_matrix(data, spearman, digits);
}

void describe_autocorrelation(const Dataset &data, int lags, int digits) {
    const int n = data.rows, m = data.columns();
    const int nk = std::min(lags, n - 1);
    std::printf("\nAutocorrelation (g13abc), lags 1 to %d\n", std::max(nk, 1));
    if (nk < lags && nk >= 1)
        std::printf("  (lags limited to %d: the series have %d values)\n", nk, n);
    std::vector<std::vector<std::string>> cells(static_cast<std::size_t>(m));
    std::vector<std::string> notes;
    std::vector<double> column(static_cast<std::size_t>(n));
    std::vector<double> r(static_cast<std::size_t>(std::max(nk, 1)));
    for (int j = 0; j < m; ++j) {
        for (int i = 0; i < n; ++i) column[i] = data.values[static_cast<std::size_t>(i) * m + j];
        double xm = 0.0, xv = 0.0, stat = 0.0;
        KivError fail = quiet_record();
        g13abc(column.data(), n, std::max(nk, 1), &xm, &xv, r.data(), &stat, &fail);
        for (int k = 0; k < nk; ++k)
            cells[j].push_back(fail.code == 0 ? significant(r[k], digits) : "-");
        if (fail.code != 0) notes.push_back(data.names[j] + ": " + one_line(fail));
    }
    if (nk >= 1) {
        std::vector<std::string> heading{"lag"};
        heading.insert(heading.end(), data.names.begin(), data.names.end());
        Table table(heading);
        for (int k = 0; k < nk; ++k) {
            std::vector<std::string> row{std::to_string(k + 1)};
            for (int j = 0; j < m; ++j) row.push_back(cells[j][k]);
            table.add_row(row);
        }
        table.print(stdout);
    }
    for (const auto &note : notes) std::printf("  note: %s\n", note.c_str());
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

}  // namespace

int run_describe(const std::vector<std::string> &args) {
    std::string path;
    int lags = 10, digits = 10;
    for (std::size_t k = 0; k < args.size(); ++k) {
        if (args[k] == "--lags")
            lags = option_value(args, k, 1, 1000000);
        else if (args[k] == "--digits")
            digits = option_value(args, k, 1, 17);
        else if (args[k].starts_with("--"))
            throw UsageError("describe: unknown option '" + args[k] + "'");
        else if (path.empty())
            path = args[k];
        else
            throw UsageError("describe takes one file");
    }
    if (path.empty()) throw UsageError("usage: kiv describe FILE.csv [--lags N] [--digits N]");
    const Dataset data = read_csv(path);
    std::printf("%s: %d rows, %d columns\n\n", path.c_str(), data.rows, data.columns());
    describe_columns(data, digits);
    describe_pearson(data, digits);
    describe_ranks(data, digits);
    describe_autocorrelation(data, lags, digits);
    return 0;
}

}  // namespace kiv::tool
