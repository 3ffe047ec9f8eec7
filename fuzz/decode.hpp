// Decoding of fuzz input into the arguments of library routines, and the
// checks that every harness applies to what a routine reports.
//
// Values are drawn with a bias towards the inputs that break numerical code:
// NaN of both signs, infinities, signed zeros, subnormals, the extremes of
// the double and int ranges, and values next to the boundaries that the
// routines test. The rest of the time the raw bytes are used as they are, so
// that every bit pattern stays reachable.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

#include "kiv.h"

namespace kiv::fuzz {

// Stops the run with a crash report: the harness found a broken contract.
[[noreturn]] inline void finding(const char *condition, const char *file, int line) {
    std::fprintf(stderr, "%s:%d: contract broken: %s\n", file, line, condition);
    std::fflush(stderr);
    __builtin_trap();
}

// Checks a contract; the condition's text is printed when it fails.
#define KIV_REQUIRE(condition) \
    ((condition) ? static_cast<void>(0) : ::kiv::fuzz::finding(#condition, __FILE__, __LINE__))

class Decoder {
public:
    Decoder(const std::uint8_t *data, std::size_t size) : provider_(data, size) {}

    bool empty() { return provider_.remaining_bytes() == 0; }
    bool flag() { return provider_.ConsumeBool(); }
    std::uint8_t byte() { return provider_.ConsumeIntegral<std::uint8_t>(); }
    int in_range(int low, int high) { return provider_.ConsumeIntegralInRange(low, high); }

    double real() {
        static constexpr double kSpecial[] = {
            0.0,
            -0.0,
            1.0,
            -1.0,
            0.5,
            2.0,
            std::numeric_limits<double>::quiet_NaN(),
            -std::numeric_limits<double>::quiet_NaN(),
            std::numeric_limits<double>::infinity(),
            -std::numeric_limits<double>::infinity(),
            DBL_MIN,
            std::numeric_limits<double>::denorm_min(),
            -std::numeric_limits<double>::denorm_min(),
            DBL_MAX,
            -DBL_MAX,
            DBL_EPSILON,
            0x1.fffffffffffffp-1,  // largest double below 1
            1e-300,
            26.6,
            -6.25,
            1e300,
            -1e-300,
            0x1p-1074 * 3,
            1e-20,
        };
        switch (provider_.ConsumeIntegralInRange(0, 3)) {
            case 0:
                return provider_.PickValueInArray(kSpecial);
            case 1:
                return std::bit_cast<double>(provider_.ConsumeIntegral<std::uint64_t>());
            case 2:
                return provider_.ConsumeFloatingPointInRange(-8.0, 8.0);
            default:
                return provider_.ConsumeFloatingPointInRange(-1e6, 1e6);
        }
    }

    // A probability-like value: mostly in [0, 1], sometimes anything.
    double probability() {
        if (provider_.ConsumeIntegralInRange(0, 3) == 0) return real();
        return provider_.ConsumeProbability<double>();
    }

    int integer() {
        static constexpr int kSpecial[] = {
            0,       1,           -1,          2,        3,          INT_MAX,
            INT_MIN, INT_MAX - 1, INT_MIN + 1, 1 << 30,  -(1 << 30),
            46341,  // its square passes 2^31
            65536,   273,         274,         16909320, 16909321,
        };
        switch (provider_.ConsumeIntegralInRange(0, 2)) {
            case 0:
                return provider_.PickValueInArray(kSpecial);
            case 1:
                return provider_.ConsumeIntegralInRange(-3, 70);
            default:
                return provider_.ConsumeIntegral<int>();
        }
    }

    // A size in [low, high] whose arrays the harness really allocates.
    int size(int low, int high) { return provider_.ConsumeIntegralInRange(low, high); }

    // An enumeration value: mostly the members and their neighbours,
    // otherwise any int (the enumerations of kiv.h have int as their fixed
    // underlying type in C++, so every int is a valid value).
    int enumeration(int first, int last) {
        if (provider_.ConsumeIntegralInRange(0, 7) == 0)
            return provider_.ConsumeIntegral<int>();
        return provider_.ConsumeIntegralInRange(first - 1, last + 1);
    }

    // n doubles, each drawn as real() or, when `plain`, as a moderate value.
    std::vector<double> reals(std::size_t n) {
        std::vector<double> values(n);
        const bool plain = provider_.ConsumeBool();
        for (double &value : values)
            value = plain ? provider_.ConsumeFloatingPointInRange(-100.0, 100.0) : real();
        return values;
    }

    std::vector<int> integers(std::size_t n, int low, int high) {
        std::vector<int> values(n);
        for (int &value : values) value = provider_.ConsumeIntegralInRange(low, high);
        return values;
    }

    std::vector<char> text(std::size_t max_length) {
        std::string s = provider_.ConsumeRandomLengthString(max_length);
        return std::vector<char>(s.c_str(), s.c_str() + s.size() + 1);
    }

    template <class T, std::size_t N>
    T pick(const T (&values)[N]) {
        return provider_.PickValueInArray(values);
    }

    std::uint64_t bits() { return provider_.ConsumeIntegral<std::uint64_t>(); }

private:
    FuzzedDataProvider provider_;
};

// A heap array of exactly n elements, so that AddressSanitizer reports any
// access past the extent that the caller claims. n = 0 gives a real
// zero-length block (reading it is an error too).
template <class T>
class Exact {
public:
    explicit Exact(std::size_t n)
        : n_(n), data_(static_cast<T *>(std::malloc(n * sizeof(T) + (n == 0)))) {
        if (data_ == nullptr) std::abort();
    }
    Exact(std::size_t n, const std::vector<T> &from) : Exact(n) {
        for (std::size_t i = 0; i < n && i < from.size(); ++i) data_[i] = from[i];
        for (std::size_t i = from.size(); i < n; ++i) data_[i] = T{};
    }
    Exact(const Exact &) = delete;
    Exact &operator=(const Exact &) = delete;
    ~Exact() { std::free(data_); }
    T *get() { return data_; }
    std::size_t size() const { return n_; }
    T &operator[](std::size_t i) { return data_[i]; }

private:
    std::size_t n_;
    T *data_;
};

// Number of elements of a row-major matrix with `rows` rows of stride `td`
// as the caller declares it: rows * td, or 0 when either is not positive.
inline std::size_t extent(int rows, int td) {
    if (rows <= 0 || td <= 0) return 0;
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(td);
}

// ---- records -------------------------------------------------------------

struct HandlerLog {
    int calls = 0;
    int last_code = -1;
};
inline thread_local HandlerLog handler_log;

inline void counting_handler(const char *message, int code, const char *routine) {
    KIV_REQUIRE(message != nullptr && routine != nullptr);
    ++handler_log.calls;
    handler_log.last_code = code;
}

// A quiet record (print = 0), with or without a handler.
inline KivError make_record(Decoder &in) {
    KivError fail{};
    fail.print = 0;
    fail.code = in.integer();
    fail.handler = in.flag() ? counting_handler : nullptr;
    fail.errnum = -77;
    std::memset(fail.message, 'x', sizeof fail.message);  // not terminated on entry
    handler_log = HandlerLog{};
    return fail;
}

// What every report leaves in the record: a known code, a terminated
// message that begins with the code's name and ":\n", and (with a handler)
// exactly one final report, with the same code.
inline void check_record(const KivError &fail) {
    const char *name = kiv_error_name(fail.code);
    KIV_REQUIRE(name != nullptr);
    KIV_REQUIRE(std::memchr(fail.message, '\0', sizeof fail.message) != nullptr);
    const std::size_t name_length = std::strlen(name);
    KIV_REQUIRE(std::strncmp(fail.message, name, name_length) == 0);
    KIV_REQUIRE(fail.message[name_length] == ':' && fail.message[name_length + 1] == '\n');
    if (fail.handler != nullptr) {
        KIV_REQUIRE(handler_log.calls == 1);
        KIV_REQUIRE(handler_log.last_code == fail.code);
    }
}

inline bool same_bits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

inline bool in_unit_interval(double p) {
    return p >= 0.0 && p <= 1.0;
}

}  // namespace kiv::fuzz
