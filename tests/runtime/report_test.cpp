// Error reporter, error-flag exit and the code table.
#include "runtime/report.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "kiv.h"
#include "runtime/code_table.hpp"
#include "support/support.hpp"

namespace {

struct HandlerCall {
    std::string message;
    int code;
    std::string routine;
};
thread_local std::vector<HandlerCall> handler_calls;

void record_handler(const char *message, int code, const char *routine) {
    handler_calls.push_back({message, code, routine});
}

KivError quiet_record() {
    return kiv::test_support::plain_record();
}

TEST(ReportError, PrintJudgesErrorOrWarningByTheLetterAfterTheFirstN) {
    struct Case {
        const char *message;
        const char *expected_heading;
    } cases[] = {
        {"NE_INT:\n  text", "Error detected by KIV routine r01abc:\n"},
        {"NW_INT:\n  text", "Warning from KIV routine r01abc:\n"},
        {"  NE custom text", "Error detected by KIV routine r01abc:\n"},  // N then E early
        {"xxxxxExtra", "Error detected by KIV routine r01abc:\n"},        // no N: sixth char
        {"xxxxxWarn", "Warning from KIV routine r01abc:\n"},
    };
    for (const Case &c : cases) {
        KivError fail{};
        fail.print = 1;
        testing::internal::CaptureStderr();
        kiv_report_error(c.message, 5, "r01abc", &fail);
        std::string printed = testing::internal::GetCapturedStderr();
        EXPECT_EQ(printed, std::string(c.expected_heading) + c.message + "\n") << c.message;
        EXPECT_EQ(fail.code, 5);
        EXPECT_STREQ(fail.message, c.message);
    }
}

TEST(ReportError, QuietRecordIsFilledAndNothingPrinted) {
    KivError fail = quiet_record();
    testing::internal::CaptureStderr();
    kiv_report_error(nullptr, NE_ALLOC_FAIL, "r01abc", &fail);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(fail.code, NE_ALLOC_FAIL);
    EXPECT_STREQ(fail.message, "NE_ALLOC_FAIL:\n  Memory allocation failed.");
}

TEST(ReportError, HandlerCalledOnceOnErrorAndOnceOnSuccess) {
    KivError fail = quiet_record();
    fail.handler = record_handler;
    handler_calls.clear();
    kiv_report_error(nullptr, NE_BAD_PARAM, "r01abc", &fail);
    kiv_report_error(nullptr, NE_NOERROR, "r01abc", &fail);
    ASSERT_EQ(handler_calls.size(), 2u);
    EXPECT_EQ(handler_calls[0].code, NE_BAD_PARAM);
    EXPECT_EQ(handler_calls[0].routine, "r01abc");
    EXPECT_EQ(handler_calls[1].code, 0);
    EXPECT_EQ(handler_calls[1].message, "NE_NOERROR:\n  No error.");
    EXPECT_EQ(fail.code, 0);
}

TEST(ReportError, UnknownCodeGetsAGenericTextNamingTheNumber) {
    KivError fail = quiet_record();
    kiv_report_error(nullptr, 99999, "r01abc", &fail);
    EXPECT_EQ(fail.code, 99999);
    EXPECT_NE(std::strstr(fail.message, "99999"), nullptr);
    kiv_report_error(nullptr, -7, "r01abc", &fail);
    EXPECT_NE(std::strstr(fail.message, "-7"), nullptr);
}

TEST(ReportError, LongMessagesAreTruncatedTo511Characters) {
    std::string longer(2000, 'x');
    longer.replace(0, 3, "NE_");
    KivError fail = quiet_record();
    std::memset(fail.message, '#', sizeof fail.message);
    kiv_report_error(longer.c_str(), 70, "r01abc", &fail);
    EXPECT_EQ(std::strlen(fail.message), 511u);
    EXPECT_EQ(std::string(fail.message), longer.substr(0, 511));
}

TEST(ReportError, FormattedMessagesAreBounded) {
    KivError fail = quiet_record();
    std::string name(3000, 'a');
    kiv::rt::report_template(&fail, "r01abc", NE_BAD_PARAM, name.c_str());
    EXPECT_EQ(std::strlen(fail.message), 511u);
    EXPECT_EQ(std::string(fail.message, 44), "NE_BAD_PARAM:\n  On entry, parameter aaaaaaaa");
}

using ReportErrorDeathTest = testing::Test;

#if GTEST_USES_SIMPLE_RE
// GoogleTest's own expressions (Windows) have no classes or alternation, and
// a text-mode stream ends lines with \r\n: \s+ stands for a line break.
constexpr const char *kAbortAfterError =
    "Error detected by KIV routine r01abc:\\s+NE_BAD_PARAM:.*\\s+.*\\s+...Program Aborted";
constexpr const char *kAbortAfterWarning =
    "Warning from KIV routine r01abc:\\s+NW_INT:.*\\s+.*\\s+.*\\s+...Program Aborted";
#else
constexpr const char *kAbortAfterError =
    "Error detected by KIV routine r01abc:\nNE_BAD_PARAM:[^\n]*\n.*\n"
    "...Program Aborted";
constexpr const char *kAbortAfterWarning =
    "Warning from KIV routine r01abc:(.|\n)*...Program Aborted";
#endif

TEST(ReportErrorDeathTest, NoRecordAbortsAfterAnError) {
    EXPECT_DEATH(kiv_report_error(nullptr, NE_BAD_PARAM, "r01abc", nullptr), kAbortAfterError);
}

TEST(ReportErrorDeathTest, NoRecordAbortsAfterAWarningToo) {
    EXPECT_DEATH(kiv_report_error(nullptr, NW_INT, "r01abc", nullptr), kAbortAfterWarning);
}

TEST(ReportError, NoRecordAndSuccessDoNothing) {
    testing::internal::CaptureStderr();
    kiv_report_error(nullptr, 0, "r01abc", nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(IfailExit, PrintDecisionsAndTexts) {
    const std::string message = "** the message   ";
    const std::string abnormal =
        " ** ABNORMAL EXIT from KIV Library routine R01ABF: IFAIL =     2 **\n";
    const std::string soft = " ** KIV soft failure - control returned\n";
    const std::string hard = " ** KIV hard failure - execution terminated\n";
    struct Case {
        int ifail;
        std::string expected;
    } cases[] = {
        {1, ""},
        {0, "** the message\n" + abnormal + hard},
        {-1, "** the message\n" + abnormal + soft},
        {-13, "** the message\n"},
        {110, "** the message\n" + abnormal + hard},
        {111, "** the message\n" + abnormal + soft},
        {101, ""},
        {-2, ""},
    };
    for (const Case &c : cases) {
        testing::internal::CaptureStdout();
        int result = kiv_ifail_exit(c.ifail, 2, "R01ABF", 1, message.c_str(), 6,
                                    static_cast<int>(message.size()));
        EXPECT_EQ(testing::internal::GetCapturedStdout(), c.expected) << "ifail " << c.ifail;
        EXPECT_EQ(result, 2);
    }
    testing::internal::CaptureStdout();
    EXPECT_EQ(kiv_ifail_exit(0, 0, "R01ABF", 1, message.c_str(), 6, 0), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(CodeTable, NamesAreNumberedAsTheTable) {
    struct Case {
        int code;
        const char *name;
    } cases[] = {
        {0, "NE_NOERROR"},
        {3, "NE_TOO_MANY"},
        {70, "NE_BAD_PARAM"},
        {73, "NE_ALLOC_FAIL"},
        {74, "NE_INTERNAL_ERROR"},
        {129, "NW_INT"},
        {420, "NE_ALG_NOT_CONV"},
        {565, "NE_STATE_CORRUPT"},
        {629, "NE_TIME_SERIES_IDEN"},
        {716, "NE_NO_LICENCE"},
        {725, "NE_TOO_CLOSE_INTEGER"},
        {2013, "NE_SUM_WEIGHT"},
        {2014, "NE_ZERO_VARIANCE"},
        {2015, "NE_NOT_AVAILABLE"},
    };
    for (const Case &c : cases) EXPECT_STREQ(kiv_error_name(c.code), c.name);
    EXPECT_EQ(kiv_error_name(726), nullptr);
    EXPECT_EQ(kiv_error_name(-1), nullptr);
    for (int code = 0; code < kiv::rt::kCodeTableSize; ++code) {
        const std::string name = kiv::rt::code_name(code);
        const std::string text = kiv::rt::code_template(code);
        EXPECT_TRUE(name.rfind("NE_", 0) == 0 || name.rfind("NW_", 0) == 0) << code;
        EXPECT_EQ(text.rfind(name + ":\n", 0), 0u) << code;
    }
}

TEST(CodeTable, QuotedTemplatesAreExact) {
    struct Case {
        int code;
        const char *text;
    } cases[] = {
        {NE_NOERROR, "NE_NOERROR:\n  No error."},
        {NE_TOO_MANY, "NE_TOO_MANY:\n  Too many iterations (%ld)."},
        {NE_INT_ARG_LT, "NE_INT_ARG_LT:\n  On entry, %s must not be less than %s: %s = %ld."},
        {NE_2_INT_ARG_LT,
         "NE_2_INT_ARG_LT:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must "
         "satisfy %s >= %s."},
        {NE_ARG_INVALID,
         "NE_ARG_INVALID:\n  On entry, %s = %1ld.\n Constraint: %s must be one of %s."},
        {NE_INTERNAL_ERROR,
         "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the "
         "function call and any array sizes. If the call is correct\n  then please consult KIV for "
         "assistance."},
        {NE_CONSTRAINT, "NE_CONSTRAINT:\n   General constraint: %s"},
        {NE_REAL_MACH_PREC,
         "NE_REAL_MACH_PREC:\n  On entry, %s = %g, machine precision(X02AJC) = %g.\n  Constraint: "
         "%s."},
        {NW_INT, "NW_INT:\n  On exit, %s = %ld.\n  Trivial solution returned."},
        {NE_STATE_CORRUPT,
         "NE_STATE_CORRUPT:\n  istate or xstate has been corrupted since the previous call to \n  "
         "kiv_save_random_state (g05cfc)."},
        {NE_BAD_NX_SET,
         "NE_BAD_NX_SET:\n  On entry, nx = %ld and there are not exactly nx values of isz < 0."},
        {NE_VAR_EQ_ZERO,
         "NE_VAR_EQ_ZERO:\n  At least one variable has zero variance. In this case v and std are "
         "as \n  calculated, but r will contain zero for any correlation involving a \n  variable "
         "with zero variance."},
        {NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library."},
    };
    for (const Case &c : cases) EXPECT_STREQ(kiv::rt::code_template(c.code), c.text) << c.code;
}

}  // namespace

namespace {

TEST(ReportSuccess, FillsTheRecordAsTheReporterDoes) {
    KivError quick{};
    KivError full{};
    std::memset(quick.message, '#', sizeof quick.message);
    std::memset(full.message, '#', sizeof full.message);
    kiv::rt::report_success(&quick, "r01abc");
    kiv_report_error(nullptr, 0, "r01abc", &full);
    EXPECT_EQ(std::memcmp(&quick, &full, sizeof quick), 0);

    KivError with_handler{};
    with_handler.handler = record_handler;
    handler_calls.clear();
    kiv::rt::report_success(&with_handler, "r01abc");
    ASSERT_EQ(handler_calls.size(), 1u);
    EXPECT_EQ(handler_calls[0].message, "NE_NOERROR:\n  No error.");

    KivError failed{};
    failed.code = NE_BAD_PARAM;
    kiv::rt::report_success(&failed, "r01abc");
    EXPECT_EQ(failed.code, NE_BAD_PARAM);
    kiv::rt::report_success(nullptr, "r01abc");
}

}  // namespace

// The typed template filler gives what printf gives for the conversions of
// the code table, and adapts an argument of another type instead of reading
// it as the conversion's type.
TEST(MessageTemplates, FillTheTableConversionsAsPrintfDoes) {
    using kiv::rt::format_message;
    struct Row {
        std::string got, want;
    };
    const Row rows[] = {
        {format_message("a %s b %g c %ld", {"x", 0.1, 42L}), "a x b 0.1 c 42"},
        {format_message("[%2ld][%1ld][%2ld]", {3, 17, 123}), "[ 3][17][123]"},
        {format_message("%g %g %g", {-0.0, 1e300, std::nan("")}), "-0 1e+300 nan"},
        {format_message("100%% of %s", {"it"}), "100% of it"},
        {format_message("%g and %ld", {3, 2.9}), "3 and 2"},  // adapted, not misread
        {format_message("%s %s", {"only one"}), "only one %s"},
    };
    for (const Row &row : rows) EXPECT_EQ(row.got, row.want);
}
