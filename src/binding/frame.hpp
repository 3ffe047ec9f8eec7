// The frame shared by every <code>_chdl export: the per-group slots, the
// argument fetch, the substitution of a script error handler, and the
// replies of exports whose routine this build does not contain.
//
// A wrapper runs, in order: store the interpreter handle into its group's
// handle slot (__builtin_Ch_VaStart); fetch each argument as the address of
// its value and read the value with the parameter's C type; if its group
// substitutes handlers and the record's handler is set, keep the script's
// handler in the group's saved-handler slot and give the routine the
// group's trampoline instead; call the routine; write the saved handler
// back into the record; close the list (Ch_VaEnd); return the result.
//
// Slots are thread-local, and every wrapper restores its group's slots to
// what they held at its entry before it returns. A call made from another
// interpreter thread, or from inside a script handler or callback that the
// routine reached, therefore never overwrites the handle, saved handler or
// callbacks of the call that is still running: each call sees its own.
#pragma once

#include <cstring>
#include <type_traits>

#include "binding/ch_host.h"
#include "kiv.h"

extern "C" KIV_API void *__builtin_Ch_VaArg(ChInterp_t interp, ChVaList_t *ap);

namespace kiv::binding {

using ErrorHandler = void (*)(const char *message, int code, const char *routine);

// Slots of one chapter group. `Callbacks` is the number of script-function
// parameters that the group's routines take (0 for most groups).
template <int Callbacks>
struct GroupSlots {
    ChInterp_t handle = nullptr;
    void *saved_handler = nullptr;
    void *callbacks[Callbacks > 0 ? Callbacks : 1] = {};
};

// Slots of a group that keeps the handle in a local of the call (X04).
struct LocalSlots {
    ChInterp_t handle = nullptr;
};

// One call's walk over the interpreter's argument list. Restores the
// group's slots and closes the list when it goes out of scope.
template <class Slots>
class Frame {
public:
    Frame(Slots &slots, void *varg) : slots_(slots), entry_(slots) {
        cursor_ = __builtin_Ch_VaStart(&slots_.handle, varg);
    }
    ~Frame() {
        Ch_VaEnd(slots_.handle, cursor_);
        slots_ = entry_;
    }
    Frame(const Frame &) = delete;
    Frame &operator=(const Frame &) = delete;

    // The next argument, read at the address that the interpreter gives
    // with the parameter's own C type (4 or 8 bytes).
    // An enumeration is read as its integer and passed on unchanged, also
    // when the script's value names no member (the routine reports it).
    template <class T>
    T arg() {
        const void *address = __builtin_Ch_VaArg(slots_.handle, &cursor_);
        if constexpr (std::is_enum_v<T>) {
            std::underlying_type_t<T> value;
            std::memcpy(&value, address, sizeof value);
            return static_cast<T>(value);
        } else {
            T value;
            std::memcpy(&value, address, sizeof value);
            return value;
        }
    }

    // Takes `count` arguments off the list without reading them.
    void skip(int count) {
        for (int i = 0; i < count; ++i) (void)__builtin_Ch_VaArg(slots_.handle, &cursor_);
    }

    // A script function argument: kept in `slot` (null too); the routine
    // gets `trampoline`, or a null function when the script gave none.
    template <class Function>
    Function callback(void *&slot, Function trampoline) {
        slot = arg<void *>();
        return slot != nullptr ? trampoline : nullptr;
    }

private:
    Slots &slots_;
    const Slots entry_;
    ChVaList_t cursor_ = nullptr;
};

// Function pointer <-> address conversions of the handler field.
inline void *handler_address(ErrorHandler handler) {
    return reinterpret_cast<void *>(handler);
}
inline ErrorHandler handler_from_address(void *address) {
    return reinterpret_cast<ErrorHandler>(address);
}

// Puts the group's trampoline in place of a script handler set in the
// record for the length of the call, and gives the script its own handler
// back afterwards (also after an error). A null record or a null handler
// passes through unchanged.
class HandlerSubstitution {
public:
    HandlerSubstitution(void *&saved_handler, KivError *fail, ErrorHandler trampoline)
        : saved_handler_(saved_handler), fail_(fail) {
        if (fail_ == nullptr) return;
        saved_handler_ = handler_address(fail_->handler);
        if (saved_handler_ != nullptr) fail_->handler = trampoline;
    }
    ~HandlerSubstitution() {
        if (fail_ != nullptr) fail_->handler = handler_from_address(saved_handler_);
    }
    HandlerSubstitution(const HandlerSubstitution &) = delete;
    HandlerSubstitution &operator=(const HandlerSubstitution &) = delete;

private:
    void *&saved_handler_;
    KivError *fail_;
};

// Forwards an error report to the script handler held in `slots`.
template <class Slots>
void forward_error(const Slots &slots, const char *message, int code, const char *routine) {
    Ch_CallFuncByAddr(slots.handle, slots.saved_handler, nullptr, message, code, routine);
}

// Replies of an export whose routine is not in this build, under the
// routine's name: through the record (code NE_NOT_AVAILABLE, reported as
// any error, so a null record prints and aborts), or, for a routine
// without a record, printed to the error stream.
void report_not_available(const char *routine, KivError *fail);
void print_not_available(const char *routine);

}  // namespace kiv::binding
