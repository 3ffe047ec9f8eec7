// The wrapper frame: unpacking of each argument kind for each result type,
// substitution and restoration of a script error handler, records passed
// untouched by the groups that do not substitute, and the per-call slots
// under nesting and threads.
//
// The routines behind the exports may still be placeholders in this build:
// where a result depends on the mathematics, the export is compared with a
// direct call of the same routine in the module (both must agree bit for
// bit, whatever the routine computes).
#include <gtest/gtest.h>

#include <bit>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <mutex>
#include <thread>

#include "host.hpp"

namespace {

using kiv_test::ArgList;
using kiv_test::as_handler;
using kiv_test::call_export;
using kiv_test::module_function;
using kiv_test::quiet_record;
using kiv_test::ScriptFunction;

// ---- unpacking ---------------------------------------------------------

TEST(BindingUnpacking, ConstantsTouchNeitherHandleNorList) {
    const struct {
        const char *name;
        std::uint64_t bits;
    } constants[] = {{"x02ajc_chdl", 0x3CA0000000000001u},
                     {"x02akc_chdl", 0x0010000000000000u},
                     {"x02alc_chdl", 0x7FEFFFFFFFFFFFFFu}};
    for (const auto &c : constants) {
        const int before = kiv_test::starts_on_this_thread();
        auto function = module_function<double (*)(void *)>(c.name);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(function(nullptr)), c.bits) << c.name;
        EXPECT_EQ(kiv_test::starts_on_this_thread(), before);
    }
}

TEST(BindingUnpacking, IntegerAndPointerWithoutResult) {
    int unit = -7;
    ArgList query;
    query.value(0).value(&unit);
    call_export("x04aaf_f_chdl", "void", query);
    EXPECT_EQ(unit, 6);
    unit = -7;
    ArgList change;  // any other flag leaves the unit alone
    change.value(1).value(&unit);
    call_export("x04aaf_f_chdl", "void", change);
    EXPECT_EQ(unit, -7);
}

TEST(BindingUnpacking, SizesAndPointersWithPointerResult) {
    void *block = nullptr;
    ArgList allocate;
    allocate.value(std::size_t{24});
    call_export("x04bbc_chdl", "pointer", allocate, &block);
    ASSERT_NE(block, nullptr);
    std::memcpy(block, "twenty-three characters", 24);

    void *grown = nullptr;
    ArgList resize;
    resize.value(block).value(std::size_t{4096});
    call_export("x04bcc_chdl", "pointer", resize, &grown);
    ASSERT_NE(grown, nullptr);
    EXPECT_STREQ(static_cast<char *>(grown), "twenty-three characters");

    ArgList release;
    release.value(&grown);
    call_export("x04bdc_chdl", "void", release);
    EXPECT_EQ(grown, nullptr);
}

TEST(BindingUnpacking, StringsReachTheRoutineAsGiven) {
    char name[] = "/tmp/kiv_binding_XXXXXX";
    const int fd = mkstemp(name);
    ASSERT_GE(fd, 0);
    const char *text = "first line\nsecond";
    for (int i = 0; i < 2; ++i) {
        ArgList list;
        list.value(static_cast<const char *>(name)).value(text);
        call_export("x04bay_chdl", "void", list);
    }
    std::ifstream in(name);
    const std::string written((std::istreambuf_iterator<char>(in)), {});
    EXPECT_EQ(written, std::string(text) + text);
    std::remove(name);
}

// Enum, double and record arguments with a double result, against the
// direct call of the same routine.
TEST(BindingUnpacking, EnumDoubleAndRecordWithDoubleResult) {
    auto direct = module_function<double (*)(Kiv_Tail, double, KivError *)>("g01eac");
    const struct {
        int tail;
        double x;
    } cases[] = {{Kiv_LowerTail, 1.96}, {Kiv_UpperTail, -0.3125}, {1328, 1.0}};
    for (const auto &c : cases) {
        KivError through = quiet_record();
        KivError plain = quiet_record();
        ArgList list;
        list.value(c.tail).value(c.x).value(&through);
        const double wrapped = call_export("g01eac_chdl", "double", list);
        const double expected = direct(static_cast<Kiv_Tail>(c.tail), c.x, &plain);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(wrapped), std::bit_cast<std::uint64_t>(expected));
        EXPECT_EQ(through.code, plain.code);
        EXPECT_STREQ(through.message, plain.message);
        if (through.code == NE_NOERROR && c.tail == Kiv_LowerTail) {
            EXPECT_NEAR(wrapped, 0.97500210485177952, 1e-15);
        }
    }
}

TEST(BindingUnpacking, DoubleArgumentWithDoubleResult) {
    auto direct = module_function<double (*)(double)>("s15adc");
    for (const double x : {-2.5, 0.0, 0.75, 27.0}) {
        ArgList list;
        list.value(x);
        const double wrapped = call_export("s15adc_chdl", "double", list);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(wrapped), std::bit_cast<std::uint64_t>(direct(x)));
    }
}

// Integer arguments with an integer result, and pointers to arrays that
// the routine fills: the same seed gives the same draws and the same saved
// state through the exports as through direct calls.
TEST(BindingUnpacking, IntegersWithIntegerResultAndArraysFilled) {
    auto seed = module_function<void (*)(int)>("g05cbc");
    auto draw = module_function<int (*)(int, int)>("g05dyc");
    auto save = module_function<void (*)(int *, double *)>("g05cfc");

    seed(1234);
    int direct_draws[3];
    for (int &d : direct_draws) d = draw(3, 97);
    int direct_istate[9] = {};
    double direct_xstate[4] = {};
    save(direct_istate, direct_xstate);

    ArgList seeding;
    seeding.value(1234);
    call_export("g05cbc_chdl", "void", seeding);
    for (const int expected : direct_draws) {
        ArgList list;
        list.value(3).value(97);
        EXPECT_EQ(call_export("g05dyc_chdl", "int", list), expected);
    }
    int istate[9] = {};
    double xstate[4] = {};
    ArgList saving;
    saving.value(static_cast<int *>(istate)).value(static_cast<double *>(xstate));
    call_export("g05cfc_chdl", "void", saving);
    EXPECT_EQ(0, std::memcmp(istate, direct_istate, sizeof istate));
    EXPECT_EQ(0, std::memcmp(xstate, direct_xstate, sizeof xstate));
}

// ---- error-handler substitution -----------------------------------------

// A C handler that a record may hold for routines that do not substitute.
struct DirectCall {
    int code;
    std::string routine;
};
thread_local std::vector<DirectCall> direct_calls;
void direct_handler(const char *, int code, const char *routine) {
    direct_calls.push_back({code, routine});
}

// Calls a three-argument G01 export (double, double, record) under `list`.
void call_g01bcc(ArgList &list, KivError *record) {
    list.value(0.5).value(2.0).value(record);
    call_export("g01bcc_chdl", "double", list);
}

TEST(BindingHandler, ScriptHandlerIsReachedThroughTheInterpreterOnError) {
    ScriptFunction script;
    KivError record = quiet_record(as_handler(script));
    ArgList list;
    call_g01bcc(list, &record);
    ASSERT_EQ(list.script_calls.size(), 1u);
    const kiv_test::ScriptCall &call = list.script_calls[0];
    EXPECT_EQ(call.function, &script);
    EXPECT_TRUE(call.result_address_null);
    EXPECT_EQ(call.code, NE_NOT_AVAILABLE);
    EXPECT_EQ(call.routine, "g01bcc");
    EXPECT_EQ(call.message,
              "NE_NOT_AVAILABLE:\n  Routine g01bcc is not available in this library.");
    EXPECT_EQ(record.handler, as_handler(script));
    EXPECT_EQ(record.code, NE_NOT_AVAILABLE);
}

// A routine's report, success included, reaches the script handler with
// the record's own outcome.
TEST(BindingHandler, ScriptHandlerSeesTheRoutinesOwnReport) {
    ScriptFunction script;
    KivError record = quiet_record(as_handler(script));
    ArgList list;
    list.value(static_cast<int>(Kiv_LowerTail)).value(1.96).value(&record);
    call_export("g01eac_chdl", "double", list);
    ASSERT_EQ(list.script_calls.size(), 1u);
    EXPECT_EQ(list.script_calls[0].code, record.code);
    EXPECT_EQ(list.script_calls[0].routine, "g01eac");
    EXPECT_EQ(list.script_calls[0].message, record.message);
    if (record.code == NE_NOERROR) {
        EXPECT_EQ(list.script_calls[0].message, "NE_NOERROR:\n  No error.");
    }
    EXPECT_EQ(record.handler, as_handler(script));
}

TEST(BindingHandler, RecordWithoutHandlerMakesNoScriptCall) {
    KivError record = quiet_record();
    ArgList list;
    call_g01bcc(list, &record);
    EXPECT_TRUE(list.script_calls.empty());
    EXPECT_EQ(record.handler, nullptr);
    EXPECT_EQ(record.code, NE_NOT_AVAILABLE);
}

// S routines and the classic generators get the record as the script gave
// it: a handler there is called as it stands, never through the host.
TEST(BindingHandler, NonSubstitutingGroupsPassTheRecordUntouched) {
    const struct {
        const char *name;
        int args;
        const char *routine;
    } exports[] = {
        {"s14aac_chdl", 2, "s14aac"}, {"g05eac_chdl", 7, "g05eac"}, {"g13fac_chdl", 23, "g13fac"}};
    for (const auto &e : exports) {
        SCOPED_TRACE(e.name);
        ASSERT_FALSE(kiv_test::entry(e.name).substitutes);
        direct_calls.clear();
        KivError record = quiet_record(direct_handler);
        ArgList list;
        for (int i = 1; i < e.args; ++i) list.value(0.5);
        list.value(&record);
        call_export(e.name, kiv_test::entry(e.name).result, list);
        EXPECT_TRUE(list.script_calls.empty());
        ASSERT_EQ(direct_calls.size(), 1u);
        EXPECT_EQ(direct_calls[0].routine, e.routine);
        EXPECT_EQ(direct_calls[0].code, record.code);
        EXPECT_EQ(record.handler, direct_handler);
    }
}

// ---- slots under nesting and threads --------------------------------------

// A script handler that calls into the same group again: the inner call
// has its own handle and handler, and the outer call still restores its
// own and closes its own list.
TEST(BindingSlots, NestedCallFromAHandlerLeavesTheOuterCallIntact) {
    ScriptFunction inner_script;
    KivError inner_record = quiet_record(as_handler(inner_script));
    ArgList inner;
    ScriptFunction outer_script;
    outer_script.action = [&] {
        inner.value(1.0).value(2.0).value(3).value(&inner_record);
        call_export("g01ebc_chdl", "double", inner);
    };
    KivError outer_record = quiet_record(as_handler(outer_script));
    ArgList outer;
    call_g01bcc(outer, &outer_record);

    ASSERT_EQ(outer.script_calls.size(), 1u);
    EXPECT_EQ(outer.script_calls[0].function, &outer_script);
    ASSERT_EQ(inner.script_calls.size(), 1u);
    EXPECT_EQ(inner.script_calls[0].function, &inner_script);
    EXPECT_EQ(inner.script_calls[0].routine, "g01ebc");
    EXPECT_EQ(outer_record.handler, as_handler(outer_script));
    EXPECT_EQ(inner_record.handler, as_handler(inner_script));
    EXPECT_EQ(outer.fetched, 3);
    EXPECT_EQ(inner.fetched, 4);
    EXPECT_FALSE(outer.foreign);
    EXPECT_FALSE(inner.foreign);
}

// The first thread's handler waits inside its call while the second
// thread makes a whole call into the same group.
TEST(BindingSlots, TwoThreadsInOneGroupKeepTheirOwnSlots) {
    std::mutex mutex;
    std::condition_variable changed;
    bool first_inside = false, second_done = false;

    ScriptFunction first_script, second_script;
    first_script.action = [&] {
        std::unique_lock lock(mutex);
        first_inside = true;
        changed.notify_all();
        changed.wait(lock, [&] { return second_done; });
    };
    KivError first_record = quiet_record(as_handler(first_script));
    KivError second_record = quiet_record(as_handler(second_script));
    ArgList first_list, second_list;

    std::thread first([&] { call_g01bcc(first_list, &first_record); });
    std::thread second([&] {
        {
            std::unique_lock lock(mutex);
            changed.wait(lock, [&] { return first_inside; });
        }
        call_g01bcc(second_list, &second_record);
        std::lock_guard lock(mutex);
        second_done = true;
        changed.notify_all();
    });
    first.join();
    second.join();

    for (const auto *run : {&first_list, &second_list}) {
        ASSERT_EQ(run->script_calls.size(), 1u);
        EXPECT_FALSE(run->foreign);
        EXPECT_EQ(run->fetched, 3);
    }
    EXPECT_EQ(first_list.script_calls[0].function, &first_script);
    EXPECT_EQ(second_list.script_calls[0].function, &second_script);
    EXPECT_EQ(first_record.handler, as_handler(first_script));
    EXPECT_EQ(second_record.handler, as_handler(second_script));
}

}  // namespace
