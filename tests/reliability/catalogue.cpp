// Calls with valid arguments, one per routine (see catalogue.hpp).
#include "catalogue.hpp"

#include <sstream>
#if KIV_HAVE_CLI_CORE
#include "routines.hpp"
#endif

#include <cmath>

namespace kiv::reliability {

double sample(int variant, int index) {
    // SplitMix64 of (variant, index): independent of the library's generators.
    std::uint64_t z = (static_cast<std::uint64_t>(variant) << 32) +
                      static_cast<std::uint32_t>(index) + 0x9E3779B97F4A7C15ull;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) * 0x1p-52 - 1.0;
}

namespace {

constexpr Kiv_Tail kTails[] = {Kiv_LowerTail, Kiv_UpperTail, Kiv_TwoTailSignif, Kiv_TwoTailConfid};

std::vector<double> series(int variant, int n, double scale, double shift = 0.0) {
    std::vector<double> x(n);
    for (int i = 0; i < n; ++i) x[i] = shift + scale * sample(variant, i);
    return x;
}

void erf_family(Scratch &s, KivError *, int variant) {
    const std::vector<double> x = series(variant, 20, 7.0);
    for (int i = 0; i < 20; ++i) {
        s.out[i] = s15abc(x[i]);
        s.out[20 + i] = s15acc(x[i]);
        s.out[40 + i] = s15adc(x[i]);
        s.out[60 + i] = s15aec(x[i]);
    }
    s15adc_v(20, x.data(), &s.out[80]);
}

void normal_tail(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 10, 5.0);
    for (int t = 0; t < 4; ++t)
        for (int i = 0; i < 10; ++i) s.out[t * 10 + i] = g01eac(kTails[t], x[i], fail);
}

void normal_deviate(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> p = series(variant, 10, 0.49, 0.5);
    for (int t = 0; t < 4; ++t)
        for (int i = 0; i < 10; ++i) s.out[t * 10 + i] = g01fac(kTails[t], p[i], fail);
}

void normal_kernel(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> p = series(variant, 20, 0.4999, 0.5);
    for (int i = 0; i < 20; ++i) s.out[i] = g01cec(p[i], fail);
}

void normal_tail_batch(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 30, 6.0);
    g01eac_v(kTails[variant % 4], 30, x.data(), s.out.data(), fail);
}

void normal_deviate_batch(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> p = series(variant, 30, 0.49, 0.5);
    g01fac_v(kTails[variant % 4], 30, p.data(), s.out.data(), fail);
}

void chi_square(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 10, 10.0, 10.0);
    for (int i = 0; i < 10; ++i) {
        s.out[i] = g01ecc(Kiv_LowerTail, x[i], 1.5 + i, fail);
        s.out[10 + i] = g01ecc(Kiv_UpperTail, x[i], 0.5 + 3 * i, fail);
    }
}

void gamma_probability(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> g = series(variant, 10, 5.0, 5.0);
    for (int i = 0; i < 10; ++i) {
        s.out[i] = g01efc(Kiv_LowerTail, g[i], 0.5 + i, 1.5, fail);
        s.out[10 + i] = g01efc(Kiv_UpperTail, g[i], 2.0, 0.25 + i, fail);
    }
}

void gamma_function(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 10, 20.0, 21.0);
    for (int i = 0; i < 10; ++i) s.out[i] = s14aac(x[i], fail);
}

void log_gamma(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 10, 50.0, 51.0);
    for (int i = 0; i < 10; ++i) s.out[i] = s14abc(x[i], fail);
}

void incomplete_gamma(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 10, 5.0, 5.5);
    for (int i = 0; i < 10; ++i) s14bac(0.5 + i, x[i], 0.0, &s.out[2 * i], &s.out[2 * i + 1], fail);
}

void moments(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 30, 3.0, 1.0);
    std::vector<double> wt = series(variant + 100, 30, 1.0, 1.0);
    wt[3] = 0.0;
    g01aac(30, x.data(), variant % 2 ? wt.data() : nullptr, &s.iout[0], &s.out[0], &s.out[1],
           &s.out[2], &s.out[3], &s.out[4], &s.out[5], &s.out[6], fail);
}

void basic_generator(Scratch &s, KivError *, int variant) {
    g05cbc(1000 * variant + 7);
    for (int i = 0; i < 150; ++i) s.out[i] = g05cac();
    for (int i = 0; i < 30; ++i) s.out[150 + i] = g05ddc(1.0, 2.0);
    for (int i = 0; i < 10; ++i) {
        s.out[180 + i] = g05dac(-1.0, 3.0);
        s.out[190 + i] = g05dbc(2.0);
        s.iout[i] = g05dyc(-5, 12);
    }
}

void restore_state(Scratch &s, KivError *fail, int variant) {
    g05cbc(variant);
    for (int i = 0; i < 70 + variant; ++i) (void)g05cac();
    int istate[9];
    double xstate[4];
    g05cfc(istate, xstate);
    s.out[0] = g05cac();
    s.out[1] = g05ddc(0.0, 1.0);
    g05cgc(istate, xstate, fail);
    s.out[2] = g05cac();
    s.out[3] = g05ddc(0.0, 1.0);
    for (int i = 0; i < 9; ++i) s.iout[i] = istate[i];
}

void selectable_generator(Scratch &s, KivError *, int variant) {
    int generator = 37 * variant;
    int seeds[4] = {variant + 1, 2 * variant + 3, -variant, 16909321};
    g05kbc(&generator, seeds);
    for (int i = 0; i < 100; ++i) s.out[i] = g05kac(generator, seeds);
    s.iout[0] = generator;
    for (int k = 0; k < 4; ++k) s.iout[1 + k] = seeds[k];
}

// Data with ties: values rounded to a coarse grid.
std::vector<double> tied(int variant, int n, int stride) {
    std::vector<double> x(n * stride);
    for (int i = 0; i < n * stride; ++i) x[i] = std::round(4.0 * sample(variant, i));
    return x;
}

void rank_correlation(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = tied(variant, 12, 5);
    const int svar[4] = {1, 1, 0, 1};
    int sobs[12];
    for (int i = 0; i < 12; ++i) sobs[i] = i == 5 ? 0 : 1;
    g02brc(12, 4, x.data(), 5, variant % 2 ? svar : nullptr, variant % 3 ? sobs : nullptr,
           s.out.data(), 4, fail);
}

void update_sums(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 40, 2.0, 1.0);
    double *sw = &s.out[0], *xbar = &s.out[1], *c = &s.out[5];
    *sw = 0.0;
    for (int j = 0; j < 14; ++j) s.out[1 + j] = 0.0;
    const Kiv_SumSquare mean = variant % 2 ? Kiv_AboutMean : Kiv_AboutZero;
    for (int i = 0; i < 10; ++i) g02btc(mean, 4, 0.5 + 0.1 * i, &x[i], 10, sw, xbar, c, fail);
}

void sums_of_squares(Scratch &s, KivError *fail, int variant, Kiv_OrderType order) {
    const std::vector<double> x = series(variant, 15 * 5, 2.0, 3.0);
    const std::vector<double> wt = series(variant + 50, 15, 0.5, 1.0);
    const Kiv_SumSquare mean = variant % 2 ? Kiv_AboutMean : Kiv_AboutZero;
    if (order == Kiv_RowMajor)
        g02buc(mean, order, 15, 4, x.data(), 5, variant % 3 ? wt.data() : nullptr, &s.out[0],
               &s.out[1], &s.out[5], fail);
    else
        g02buc(mean, order, 15, 4, x.data(), 16, variant % 3 ? wt.data() : nullptr, &s.out[0],
               &s.out[1], &s.out[5], fail);
}
void sums_by_rows(Scratch &s, KivError *fail, int variant) {
    sums_of_squares(s, fail, variant, Kiv_RowMajor);
}
void sums_by_columns(Scratch &s, KivError *fail, int variant) {
    sums_of_squares(s, fail, variant, Kiv_ColMajor);
}

// Packed sums of squares and cross-products of a 12 x m data matrix.
void packed_sums(int variant, int m, double *c) {
    for (int j = 0; j < m; ++j)
        for (int i = 0; i <= j; ++i) {
            double sum = 0.0;
            for (int k = 0; k < 12; ++k)
                sum += sample(variant, k * m + i) * sample(variant, k * m + j);
            c[j * (j + 1) / 2 + i] = sum;
        }
}

void correlation_from_sums(Scratch &s, KivError *fail, int variant) {
    packed_sums(variant, 5, s.out.data());
    g02bwc(5, s.out.data(), fail);
}

void pearson(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 15 * 4, 2.0);
    const std::vector<double> wt = series(variant + 7, 15, 0.5, 1.0);
    const int sx[4] = {1, 1, variant % 2, 1};
    g02bxc(15, 4, x.data(), 4, sx, variant % 3 ? wt.data() : nullptr, &s.out[0], &s.out[1],
           &s.out[5], &s.out[9], 4, &s.out[25], 4, fail);
}

void partial_correlation(Scratch &s, KivError *fail, int variant) {
    double c[15];
    packed_sums(variant, 5, c);
    double r[25];
    for (int i = 0; i < 5; ++i)
        for (int j = 0; j < 5; ++j) {
            const int lo = std::min(i, j), hi = std::max(i, j);
            r[i * 5 + j] =
                c[hi * (hi + 1) / 2 + lo] / std::sqrt(c[i * (i + 3) / 2] * c[j * (j + 3) / 2]);
        }
    const int isz[5] = {-1, 1, -1, 1, 0};
    g02byc(5, 2, 2, isz, r, 5, s.out.data(), 2, fail);
}

void differencing(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 30, 10.0);
    g13aac(x.data(), 30, 1, 1, 4, s.out.data(), &s.iout[0], fail);
}

void autocorrelation(Scratch &s, KivError *fail, int variant) {
    const std::vector<double> x = series(variant, 40, 10.0, 3.0);
    g13abc(x.data(), 40, 8, &s.out[0], &s.out[1], &s.out[2], &s.out[10], fail);
}

void partial_autocorrelation(Scratch &s, KivError *fail, int variant) {
    const double phi = 0.5 + 0.02 * variant;
    double r[6];
    for (int k = 0; k < 6; ++k) r[k] = std::pow(phi, k + 1) + 0.01 * sample(variant, k);
    g13acc(r, 6, 6, &s.out[0], &s.out[6], &s.out[12], &s.iout[0], fail);
}

#if KIV_HAVE_CLI_CORE
std::vector<std::string> words_of(const char *text) {
    std::vector<std::string> words;
    std::istringstream in(text);
    for (std::string word; in >> word;) words.push_back(word);
    return words;
}

// The example call of a routine's record, through the kiv tool's table: the
// printed outputs reduced to a 64-bit FNV-1a digest and their length.
Call example_call(const kiv::tool::RoutineSpec &spec) {
    return {spec.name, spec.has_record,
            [&spec](Scratch &s, KivError *fail, int) {
                const kiv::tool::Inputs inputs =
                    kiv::tool::parse_inputs(spec, words_of(spec.example));
                kiv::tool::Outputs outputs;
                spec.call(inputs, outputs, fail);
                const std::string text = outputs.text();
                std::uint64_t digest = 0xcbf29ce484222325ull;
                for (unsigned char c : text) digest = (digest ^ c) * 0x100000001b3ull;
                s.out[0] = std::bit_cast<double>(digest);
                s.iout[0] = static_cast<int>(text.size());
            },
            true};
}
#endif

std::vector<Call> all_calls() {
    std::vector<Call> calls = {
        {"s15abc", false, erf_family},
        {"g01eac", true, normal_tail},
        {"g01fac", true, normal_deviate},
        {"g01cec", true, normal_kernel},
        {"g01eac_v", true, normal_tail_batch},
        {"g01fac_v", true, normal_deviate_batch},
        {"g01ecc", true, chi_square},
        {"g01efc", true, gamma_probability},
        {"s14aac", true, gamma_function},
        {"s14abc", true, log_gamma},
        {"s14bac", true, incomplete_gamma},
        {"g01aac", true, moments},
        {"g05cac", false, basic_generator},
        {"g05cgc", false, restore_state},  // its record comes after g05caz's check
        {"g05kac", false, selectable_generator},
        {"g02brc", true, rank_correlation},
        {"g02btc", true, update_sums},
        {"g02buc", true, sums_by_rows},
        {"g02buc/columns", true, sums_by_columns},
        {"g02bwc", true, correlation_from_sums},
        {"g02bxc", true, pearson},
        {"g02byc", true, partial_correlation},
        {"g13aac", true, differencing},
        {"g13abc", true, autocorrelation},
        {"g13acc", true, partial_autocorrelation},
    };
#if KIV_HAVE_CLI_CORE
    // Every other routine of the records, by its example. The random-number
    // routines and the clock depend on per-thread state and have their own
    // calls above.
    for (const auto &spec : kiv::tool::routines()) {
        const std::string name = spec.name;
        if (name.starts_with("g05") || name.starts_with("x05")) continue;
        bool covered = false;
        for (const Call &call : calls) covered = covered || name == call.routine;
        if (!covered) calls.push_back(example_call(spec));
    }
#endif
    return calls;
}

}  // namespace

const std::vector<Call> &catalogue() {
    static const std::vector<Call> calls = all_calls();
    return calls;
}

}  // namespace kiv::reliability
