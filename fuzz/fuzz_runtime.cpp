// Fuzz harness: the error reporter and the error-flag exit.
//
// kiv_report_error gets arbitrary message bytes (also none, also longer than
// the record's 512 characters), any code, any routine name, and a quiet
// record with or without a handler; the record must come back with the code
// and a terminated, bounded copy of the message. kiv_ifail_exit gets any
// ifail, failure number, record count, text and lengths (its output goes to
// standard output, which the harness sends to /dev/null).
#include <fcntl.h>
#include <unistd.h>

#include <cstring>

#include "decode.hpp"

using namespace kiv::fuzz;

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    const int null_device = open("/dev/null", O_WRONLY);
    if (null_device >= 0) dup2(null_device, STDOUT_FILENO);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    switch (in.in_range(0, 2)) {
        case 0: {  // reporter with a message of its own or none
            KivError fail = make_record(in);
            const int code = in.flag() ? in.in_range(0, 730) : in.integer();
            std::vector<char> routine = in.text(12);
            const bool own_message = in.flag();
            std::vector<char> message = in.text(2048);
            kiv_report_error(own_message ? message.data() : nullptr, code, routine.data(), &fail);
            KIV_REQUIRE(fail.code == code);
            const std::size_t length = strnlen(fail.message, sizeof fail.message);
            KIV_REQUIRE(length < sizeof fail.message);
            if (own_message) {
                const std::size_t whole = std::strlen(message.data());
                KIV_REQUIRE(length == (whole < 511 ? whole : 511));
                KIV_REQUIRE(std::memcmp(fail.message, message.data(), length) == 0);
            }
            if (fail.handler != nullptr) KIV_REQUIRE(handler_log.calls == 1);
            break;
        }
        case 1: {  // error-flag exit
            const int ifail = in.integer();
            const int ierror = in.integer();
            const int nrec = in.integer();
            std::vector<char> routine = in.text(12);
            std::vector<char> message = in.text(600);
            const bool null_message = in.flag();
            const int routine_length = in.integer();
            const int message_length = in.integer();
            const int result = kiv_ifail_exit(ifail, ierror, in.flag() ? nullptr : routine.data(),
                                              nrec, null_message ? nullptr : message.data(),
                                              routine_length, message_length);
            KIV_REQUIRE(result == ierror);
            break;
        }
        default: {  // names of codes and machine constants
            const int code = in.integer();
            const char *name = kiv_error_name(code);
            if (code >= 0 && code <= 725) KIV_REQUIRE(name != nullptr);
            if (name != nullptr) KIV_REQUIRE(name[0] == 'N' && (name[1] == 'E' || name[1] == 'W'));
            KIV_REQUIRE(1.0 + x02ajc() > 1.0 && x02akc() == DBL_MIN && x02alc() == DBL_MAX);
            break;
        }
    }
    return 0;
}
