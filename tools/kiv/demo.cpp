// `kiv demo`: a short tour that calls a routine of every chapter and prints
// the results as tables. A routine that reports an error (for instance one
// that is not in this build) is shown by its message, and the tour goes on.
#include <cmath>
#include <cstdio>

#include "commands.hpp"
#include "text.hpp"

namespace kiv::tool {

namespace {

std::string num(double value) {
    return significant(value, 15);
}

// True when the call succeeded; otherwise prints the record's message.
bool succeeded(const KivError &fail, const char *routine) {
    if (fail.code == 0) return true;
    std::printf("  %s: %s\n", routine, one_line(fail).c_str());
    return false;
}

void heading(const char *title) {
    std::printf("\n%s\n\n", title);
}

void special_functions() {
    heading("Error function and its complement (s15aec, s15adc)");
    Table table({"x", "erf(x)", "erfc(x)"});
    for (double x : {-2.0, -1.0, -0.5, 0.0, 0.5, 1.0, 2.0, 5.0})
        table.add_row({num(x), num(s15aec(x)), num(s15adc(x))});
    table.print(stdout);
}

void normal_distribution() {
    heading("Normal distribution: tail probabilities (g01eac) and deviates (g01fac)");
    Table tails({"x", "lower tail", "upper tail", "two-tail signif."});
    for (double x : {0.0, 1.0, 1.6448536269514722, 1.959963984540054, 2.5758293035489004}) {
        KivError fail = quiet_record();
        const double lower = g01eac(Kiv_LowerTail, x, &fail);
        const double upper = g01eac(Kiv_UpperTail, x, &fail);
        const double two = g01eac(Kiv_TwoTailSignif, x, &fail);
        if (!succeeded(fail, "g01eac")) return;
        tails.add_row({num(x), num(lower), num(upper), num(two)});
    }
    tails.print(stdout);
    std::printf("\n");
    Table deviates({"p", "lower-tail deviate", "two-tail confidence deviate"});
    for (double p : {0.5, 0.9, 0.95, 0.975, 0.99, 0.999}) {
        KivError fail = quiet_record();
        const double lower = g01fac(Kiv_LowerTail, p, &fail);
        const double confid = g01fac(Kiv_TwoTailConfid, p, &fail);
        if (!succeeded(fail, "g01fac")) return;
        deviates.add_row({num(p), num(lower), num(confid)});
    }
    deviates.print(stdout);
    std::printf(
        "\n  The x of the first table are the exact quantiles; g01fac's rational\n"
        "  approximations are accurate to about 1e-12, so its deviates agree with\n"
        "  them to 12 digits (1.64485362695213 against 1.64485362695147).\n");
}

void chi_square() {
    heading("Chi-square upper tail at the 5% critical values (g01ecc)");
    Table table({"x", "df", "upper tail"});
    const double cases[][2] = {{3.841458820694124, 1},
                               {5.991464547107979, 2},
                               {11.070497693516351, 5},
                               {18.307038053275146, 10}};
    for (const auto &c : cases) {
        KivError fail = quiet_record();
        const double q = g01ecc(Kiv_UpperTail, c[0], c[1], &fail);
        if (!succeeded(fail, "g01ecc")) return;
        table.add_row({num(c[0]), num(c[1]), num(q)});
    }
    table.print(stdout);
    std::printf(
        "\n  g01ecc works to a relative accuracy of 5e-06 by design, so the tails\n"
        "  agree with 0.05 to about six digits (0.0499999969522332 for df = 1).\n");
}

void descriptive() {
    heading("Descriptive statistics (g01aac)");
    Table table({"sample", "n", "mean", "sd", "skewness", "kurtosis", "min", "max", "wsum"});
    const double x[] = {1.0, 2.0, 3.0, 4.0};
    const double y[] = {1.0, 2.0, 3.0, 10.0};
    const double w[] = {1.0, 3.0, 0.5, 2.0};
    struct Sample {
        const char *label;
        const double *x;
        const double *wt;
    };
    for (const Sample &s :
         {Sample{"1 2 3 4", x, nullptr}, Sample{"1 2 3 10, weights 1 3 0.5 2", y, w}}) {
        int nvalid = 0;
        double mean = 0, sd = 0, skew = 0, kurt = 0, lo = 0, hi = 0, wsum = 0;
        KivError fail = quiet_record();
        g01aac(4, s.x, s.wt, &nvalid, &mean, &sd, &skew, &kurt, &lo, &hi, &wsum, &fail);
        if (!succeeded(fail, "g01aac")) return;
        table.add_row({s.label, std::to_string(nvalid), num(mean), num(sd), num(skew), num(kurt),
                       num(lo), num(hi), num(wsum)});
    }
    table.print(stdout);
}

void random_numbers() {
    heading("Random numbers after seeding with 0 (g05cbc, g05cac, g05ddc, g05dyc)");
    double uniform[6], normal[6];
    int dice[6];
    g05cbc(0);
    for (double &u : uniform) u = g05cac();
    g05cbc(0);
    for (double &z : normal) z = g05ddc(0.0, 1.0);
    g05cbc(0);
    for (int &d : dice) d = g05dyc(1, 6);
    Table table({"draw", "uniform (0,1)", "normal (0,1)", "die 1..6"});
    for (int k = 0; k < 6; ++k)
        table.add_row(
            {std::to_string(k + 1), num(uniform[k]), num(normal[k]), std::to_string(dice[k])});
    table.print(stdout);
}

// Eight observations of three variables, row by row.
constexpr int obs = 8, vars = 3;
constexpr double data[obs * vars] = {
    1.0, 2.1,  9.0,  //
    2.0, 3.9,  7.5,  //
    3.0, 6.2,  8.1,  //
    4.0, 7.8,  6.0,  //
    5.0, 10.1, 5.2,  //
    6.0, 12.2, 5.9,  //
    7.0, 13.8, 3.1,  //
    8.0, 16.1, 2.4,  //
};
const char *const names[vars] = {"a", "b", "c"};

void print_square(const double *matrix, const char *title) {
    std::printf("%s\n", title);
    Table table({"", names[0], names[1], names[2]});
    for (int i = 0; i < vars; ++i)
        table.add_row({names[i], num(matrix[i * vars]), num(matrix[i * vars + 1]),
                       num(matrix[i * vars + 2])});
    table.print(stdout);
}

void correlation() {
    heading("Correlation of three variables over eight observations (g02bxc, g02brc)");
    const int sx[vars] = {1, 1, 1};
    double sw = 0, mean[vars], sd[vars], r[vars * vars], v[vars * vars], corr[vars * vars];
    KivError fail = quiet_record();
    g02bxc(obs, vars, data, vars, sx, nullptr, &sw, mean, sd, r, vars, v, vars, &fail);
    if (succeeded(fail, "g02bxc")) print_square(r, "Pearson");
    fail = quiet_record();
    g02brc(obs, vars, data, vars, nullptr, nullptr, corr, vars, &fail);
    if (succeeded(fail, "g02brc"))
        print_square(corr, "\nKendall (below the diagonal) and Spearman (above)");
}

void time_series() {
    heading("Autocorrelations of a series of 12 values (g13abc, g13acc)");
    const double x[] = {5.0, 11.0, 16.0, 23.0, 36.0, 58.0, 29.0, 20.0, 10.0, 8.0, 3.0, 0.0};
    constexpr int nk = 5;
    double xm = 0, xv = 0, stat = 0, r[nk], p[nk], v[nk], ar[nk];
    int nvl = 0;
    KivError fail = quiet_record();
    g13abc(x, 12, nk, &xm, &xv, r, &stat, &fail);
    if (!succeeded(fail, "g13abc")) return;
    fail = quiet_record();
    g13acc(r, nk, nk, p, v, ar, &nvl, &fail);
    const bool partial = succeeded(fail, "g13acc");
    std::printf("  mean %s, variance %s, portmanteau statistic %s\n\n", num(xm).c_str(),
                num(xv).c_str(), num(stat).c_str());
    Table table({"lag", "autocorrelation", "partial", "error variance ratio"});
    for (int k = 0; k < nk; ++k) {
        const bool reached = partial && k < nvl;
        table.add_row({std::to_string(k + 1), num(r[k]), reached ? num(p[k]) : "-",
                       reached ? num(v[k]) : "-"});
    }
    table.print(stdout);
}

}  // namespace

int run_demo() {
    std::printf("libkiv: a tour of the chapters\n");
    special_functions();
    normal_distribution();
    chi_square();
    descriptive();
    random_numbers();
    correlation();
    time_series();
    std::printf("\nMore: kiv help, kiv list, kiv describe FILE.csv\n");
    return 0;
}

}  // namespace kiv::tool
