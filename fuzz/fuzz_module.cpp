// Fuzz harness: the interpreter module libkiv.dl through a stand-in host.
//
// Calls the exports of the routines present (S, G01, G02, G05, G13, X02)
// with argument lists decoded from the input, exactly as long as each
// export's contract says, records with and without a script error handler.
// Contracts: each export fetches exactly its arguments and closes the list
// once; a script handler is called through Ch_CallFuncByAddr once per
// report, with the routine's code, and the record holds the script's own
// handler again after the call; the export's result equals the module's own
// routine called directly with the same arguments.
#include <cstring>

#include "decode.hpp"
#include "module_host.hpp"

using namespace kiv::fuzz;

namespace {

template <class F>
F symbol(const char *name) {
    void *address = module_symbol(name);
    KIV_REQUIRE(address != nullptr);
    return reinterpret_cast<F>(address);
}

using Handler = void (*)(const char *, int, const char *);

struct Record {
    KivError fail{};
    KivError *pointer = &fail;  // what the argument list carries the address of
    bool scripted = false;
    explicit Record(Decoder &in) {
        fail.print = 0;
        scripted = in.flag();
        fail.handler = scripted ? reinterpret_cast<Handler>(script_handler_token()) : nullptr;
    }
    // After the export: the record carries the script's handler again, and
    // the script handler saw the one final report.
    void check(const ArgumentList &list) const {
        KIV_REQUIRE(reinterpret_cast<void *>(fail.handler) ==
                    (scripted ? script_handler_token() : nullptr));
        if (scripted) {
            KIV_REQUIRE(list.script_calls == 1);
            KIV_REQUIRE(list.last_script_code == fail.code);
        } else {
            KIV_REQUIRE(list.script_calls == 0);
        }
    }
};

void check_frame(const ArgumentList &list) {
    KIV_REQUIRE(list.fetched == list.addresses.size());
    KIV_REQUIRE(list.starts == 1 && list.ends == 1);
}

template <class Result>
Result call(const char *export_name, ArgumentList &list) {
    return symbol<Result (*)(void *)>(export_name)(&list);
}

void special_function(Decoder &in) {
    static const char *const kNames[][2] = {{"s15abc_chdl", "s15abc"},
                                            {"s15acc_chdl", "s15acc"},
                                            {"s15adc_chdl", "s15adc"},
                                            {"s15aec_chdl", "s15aec"}};
    const auto &name = kNames[in.in_range(0, 3)];
    double x = in.real();
    ArgumentList list;
    list.addresses = {&x};
    const double got = call<double>(name[0], list);
    check_frame(list);
    KIV_REQUIRE(same_bits(got, symbol<decltype(&::s15adc)>(name[1])(x)));
}

void distribution(Decoder &in) {
    int tail = in.enumeration(Kiv_LowerTail, Kiv_Central);
    double a = in.real(), b = in.real(), c = in.real();
    Record record(in);
    KivError direct{};
    ArgumentList list;
    double got = 0.0, expected = 0.0;
    switch (in.in_range(0, 4)) {
        case 0:
            list.addresses = {&tail, &a, &record.pointer};
            got = call<double>("g01eac_chdl", list);
            expected =
                symbol<decltype(&::g01eac)>("g01eac")(static_cast<Kiv_Tail>(tail), a, &direct);
            break;
        case 1:
            list.addresses = {&tail, &a, &record.pointer};
            got = call<double>("g01fac_chdl", list);
            expected =
                symbol<decltype(&::g01fac)>("g01fac")(static_cast<Kiv_Tail>(tail), a, &direct);
            break;
        case 2:
            list.addresses = {&a, &record.pointer};
            got = call<double>("g01cec_chdl", list);
            expected = symbol<decltype(&::g01cec)>("g01cec")(a, &direct);
            break;
        case 3:
            list.addresses = {&tail, &a, &b, &record.pointer};
            got = call<double>("g01ecc_chdl", list);
            expected =
                symbol<decltype(&::g01ecc)>("g01ecc")(static_cast<Kiv_Tail>(tail), a, b, &direct);
            break;
        default:
            list.addresses = {&tail, &a, &b, &c, &record.pointer};
            got = call<double>("g01efc_chdl", list);
            expected = symbol<decltype(&::g01efc)>("g01efc")(static_cast<Kiv_Tail>(tail), a, b, c,
                                                             &direct);
            break;
    }
    check_frame(list);
    record.check(list);
    KIV_REQUIRE(record.fail.code == direct.code);
    KIV_REQUIRE(std::strcmp(record.fail.message, direct.message) == 0);
    KIV_REQUIRE(same_bits(got, expected));
}

void moments(Decoder &in) {
    int n = in.size(-1, 16);
    const std::size_t count = n > 0 ? static_cast<std::size_t>(n) : 0;
    Exact<double> x(count, in.reals(count));
    double *x_pointer = x.get();
    double *wt_pointer = nullptr;
    int nvalid = -1;
    double out[7] = {};
    // Pointer arguments travel as the address of the pointer value.
    int *nvalid_pointer = &nvalid;
    double *o[7];
    for (int k = 0; k < 7; ++k) o[k] = &out[k];
    Record record(in);
    ArgumentList list;
    list.addresses = {&n,    &x_pointer, &wt_pointer, &nvalid_pointer, &o[0], &o[1],
                      &o[2], &o[3],      &o[4],       &o[5],           &o[6], &record.pointer};
    call<void>("g01aac_chdl", list);
    check_frame(list);
    record.check(list);
}

void time_series(Decoder &in) {
    int nk = in.size(-1, 8);
    int nl = in.size(-1, 8);
    double r_values[8];
    for (double &v : r_values) v = std::fmod(in.real(), 1.0);
    double p[8], v[8], ar[8];
    double *r_pointer = r_values, *p_pointer = p, *v_pointer = v, *ar_pointer = ar;
    int nvl = -1;
    int *nvl_pointer = &nvl;
    Record record(in);
    ArgumentList list;
    list.addresses = {&r_pointer, &nk,         &nl,          &p_pointer,
                      &v_pointer, &ar_pointer, &nvl_pointer, &record.pointer};
    call<void>("g13acc_chdl", list);
    check_frame(list);
    record.check(list);
}

void generators(Decoder &in) {
    int seed = in.integer();
    ArgumentList seeding;
    seeding.addresses = {&seed};
    call<void>("g05cbc_chdl", seeding);
    check_frame(seeding);
    ArgumentList none;
    const double u = call<double>("g05cac_chdl", none);
    KIV_REQUIRE(none.fetched == 0 && none.starts == 0);  // no arguments: the list is not touched
    KIV_REQUIRE(u > 0.0 && u < 1.0);
    int i = in.integer(), j = in.integer();
    ArgumentList bounds;
    bounds.addresses = {&i, &j};
    const int k = call<int>("g05dyc_chdl", bounds);
    check_frame(bounds);
    KIV_REQUIRE(k >= std::min(i, j) && k <= std::max(i, j));
    int generator = in.integer();
    int seeds[4] = {in.integer(), in.integer(), in.integer(), in.integer()};
    int *generator_pointer = &generator, *seeds_pointer = seeds;
    ArgumentList selecting;
    selecting.addresses = {&generator_pointer, &seeds_pointer};
    call<void>("g05kbc_chdl", selecting);
    check_frame(selecting);
    KIV_REQUIRE(generator >= 0 && generator <= 273);
    ArgumentList drawing;
    drawing.addresses = {&generator, &seeds_pointer};
    const double w = call<double>("g05kac_chdl", drawing);
    check_frame(drawing);
    KIV_REQUIRE(w >= 0.0 && w < 1.0);
}

void constants() {
    ArgumentList none;
    KIV_REQUIRE(call<double>("x02ajc_chdl", none) == symbol<decltype(&::x02ajc)>("x02ajc")());
    KIV_REQUIRE(none.starts == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    switch (in.in_range(0, 5)) {
        case 0:
            special_function(in);
            break;
        case 1:
            distribution(in);
            break;
        case 2:
            moments(in);
            break;
        case 3:
            time_series(in);
            break;
        case 4:
            generators(in);
            break;
        default:
            constants();
            break;
    }
    return 0;
}
