// The export catalogue: every export is a defined symbol of libkiv.dl,
// takes exactly its listed number of arguments off the interpreter's list,
// and an export whose routine is not in this build replies as documented.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <set>

#include "host.hpp"

namespace {

using kiv_test::ArgList;
using kiv_test::catalogue;
using kiv_test::Entry;

std::string not_available_text(const std::string &routine) {
    return "NE_NOT_AVAILABLE:\n  Routine " + routine + " is not available in this library.";
}

TEST(BindingCatalogue, ListsEveryExportOnceWithTheChapterCounts) {
    std::map<std::string, int> per_chapter;
    std::set<std::string> names;
    for (const Entry &e : catalogue()) {
        EXPECT_TRUE(names.insert(e.export_name).second) << e.export_name;
        ++per_chapter[e.group[0] == 's' ? "s" : e.export_name.substr(0, 3)];
    }
    EXPECT_EQ(names.size(), 344u);
    const std::map<std::string, int> expected = {
        {"g01", 55}, {"g02", 34}, {"g03", 20}, {"g04", 6},  {"g05", 68}, {"g07", 8}, {"g08", 15},
        {"g10", 5},  {"g11", 3},  {"g12", 3},  {"g13", 38}, {"s", 64},   {"x02", 3}, {"x04", 22}};
    EXPECT_EQ(per_chapter, expected);
}

TEST(BindingCatalogue, EveryNameIsADefinedSymbolOfTheModule) {
    Dl_info info{};
    for (const Entry &e : catalogue()) {
        void *address = kiv_test::export_address(e.export_name);
        ASSERT_NE(address, nullptr) << e.export_name;
        ASSERT_NE(dladdr(address, &info), 0);
        EXPECT_STREQ(info.dli_sname, e.export_name.c_str());
    }
    EXPECT_NE(kiv_test::export_address("__builtin_Ch_VaArg"), nullptr);
}

// The twenty-five exports that have no routine in any build of this
// library, and every routine marked present is in the module.
TEST(BindingCatalogue, MarksTheExportsWithoutARoutine) {
    const std::set<std::string> never = {
        "g01bcc_chdl", "g01dac_0_chdl", "g01ebf_f_chdl", "g03zaf_f_chdl", "g05cxc_chdl",
        "g05dfc_chdl", "g05dgc_chdl",   "g05drc_chdl",   "g05fdc_chdl",   "g12aaf_f_chdl",
        "s23aac_chdl", "x04bcz_chdl",   "x04cac_chdl",   "x04cbc_chdl",   "x04cdc_chdl",
        "x04cec_chdl", "x04cfc_chdl",   "x04dac_chdl",   "x04dbc_chdl",   "x04dcc_chdl",
        "x04ddc_chdl", "x04dec_chdl",   "x04dfc_chdl",   "x04mac_chdl",   "x04mbc_chdl"};
    for (const Entry &e : catalogue()) {
        if (never.count(e.export_name)) {
            EXPECT_FALSE(e.present) << e.export_name;
        }
        if (e.present) {
            const std::string routine = e.routine;
            EXPECT_NE(dlsym(kiv_test::module(), routine.c_str()), nullptr) << routine;
        }
    }
}

// Storage for the arguments of one generic call: every value zero, every
// pointer to zero-filled memory of its own, the record quiet.
class Arguments {
public:
    explicit Arguments(const Entry &e) : record_(kiv_test::quiet_record()) {
        for (int i = 0; i < e.args; ++i) {
            const bool last = i + 1 == e.args;
            const std::string type =
                e.present ? e.params[static_cast<std::size_t>(i)] : std::string("int");
            if ((last && e.record) || type.rfind("KivError *", 0) == 0) {
                list.value(&record_);
            } else if (type.find('*') != std::string::npos) {
                buffers_.emplace_back(new std::uint64_t[512]());
                list.value(static_cast<void *>(buffers_.back().get()));
            } else {
                list.value(std::uint64_t{0});
            }
        }
    }
    ArgList list;
    KivError &record() { return record_; }

private:
    KivError record_;
    std::vector<std::unique_ptr<std::uint64_t[]>> buffers_;
};

// Exports whose routines need real arguments (a file name, a block to
// free); the frame tests call them with such.
const std::set<std::string> kCalledElsewhere = {"x04bay_chdl", "x04bbc_chdl", "x04bcc_chdl"};

TEST(BindingCatalogue, EveryExportTakesExactlyItsArgumentsOffTheList) {
    for (const Entry &e : catalogue()) {
        if (kCalledElsewhere.count(e.export_name)) continue;
        SCOPED_TRACE(e.export_name);
        Arguments arguments(e);
        const int starts_before = kiv_test::starts_on_this_thread();
        testing::internal::CaptureStderr();
        const double result = kiv_test::call_export(e.export_name, e.result, arguments.list);
        const std::string printed = testing::internal::GetCapturedStderr();
        ArgList &list = arguments.list;
        if (e.args == 0) {
            EXPECT_EQ(kiv_test::starts_on_this_thread(), starts_before);
        } else {
            EXPECT_EQ(list.starts, 1);
            EXPECT_EQ(list.ends, 1);
            EXPECT_EQ(list.fetched, e.args);
            EXPECT_FALSE(list.foreign);
        }
        if (e.record) {
            EXPECT_EQ(arguments.record().handler, nullptr);
        }
        if (e.present) continue;
        EXPECT_EQ(result, 0.0);
        if (e.record) {
            EXPECT_EQ(arguments.record().code, NE_NOT_AVAILABLE);
            EXPECT_EQ(arguments.record().message, not_available_text(e.routine));
            EXPECT_EQ(printed, "");
        } else {
            EXPECT_EQ(printed, not_available_text(e.routine) + "\n");
        }
    }
}

TEST(BindingCatalogueDeathTest, NotAvailableWithANullRecordPrintsAndAborts) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            ArgList list;
            list.value(0.5).value(1.5).value(static_cast<KivError *>(nullptr));
            kiv_test::call_export("g01bcc_chdl", "double", list);
        },
        "Error detected by KIV routine g01bcc:\nNE_NOT_AVAILABLE:\n  Routine g01bcc is not "
        "available in this library.\n\\.\\.\\.Program Aborted");
}

}  // namespace
