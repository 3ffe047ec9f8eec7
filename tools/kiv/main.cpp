// kiv: the library from the command line.
//
//   kiv demo                         a short tour of every chapter
//   kiv <code> ARGS...               call a routine (kiv help <code>)
//   kiv describe FILE.csv|- [options]  (kiv describe --help)
//   kiv list [--present]             the export catalogue
//
// Exit status: 0 on success, 1 when a routine reports an error, 2 for a
// mistake on the command line or in an input file.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <new>

#include "catalogue.hpp"
#include "commands.hpp"
#include "routines.hpp"
#include "text.hpp"

namespace kiv::tool {

namespace {

constexpr const char *usage_text =
    "usage: kiv COMMAND [ARGS...]\n"
    "\n"
    "  demo                          a short tour of the library's chapters\n"
    "  describe FILE.csv|- [OPTIONS] statistics, correlations and autocorrelations\n"
    "                                of the columns of a CSV file with a header line\n"
    "                                (kiv describe --help)\n"
    "  list [--present]              every export of the catalogue and whether its\n"
    "                                routine is in this build\n"
    "  <code> ARGS... [+ <code> ARGS...]\n"
    "                                call routines in turn, e.g. kiv g01eac Kiv_LowerTail 1.96\n"
    "  help [<code>|<command>]       this text, the arguments of a routine, or the\n"
    "                                options of a command (also <command> --help)\n"
    "  --version                     the tool's and the library's version\n"
    "\n"
    "Arrays are given as @file, - (standard input) or a list 1,2,3; optional\n"
    "arrays as null. Enumerations by member name (Kiv_LowerTail) or value.\n";

// True for a message that the library would print as an error (the first
// "N" among the first five characters followed by "E"), false for a warning.
bool is_error_message(const char *message) {
    for (int i = 0; i < 5 && message[i] != '\0'; ++i)
        if (message[i] == 'N') return message[i + 1] == 'E';
    return std::strlen(message) > 5 && message[5] == 'E';
}

std::string lower_case(std::string text) {
    for (char &c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Levenshtein distance, for suggestions.
std::size_t distance(const std::string &a, const std::string &b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1])});
            diagonal = above;
        }
    }
    return row[b.size()];
}

// The routine named, in any case; an unknown name is a usage error with the
// nearest names of the catalogue as suggestions.
const RoutineSpec &routine_or_throw(const std::string &given) {
    const std::string name = lower_case(given);
    if (const RoutineSpec *spec = find_routine(name)) return *spec;
    for (const auto &entry : catalogue())
        if (entry.routine == name)
            throw UsageError("routine '" + name + "' is not in this build (kiv list)");
    std::string near;
    for (const auto &spec : routines())
        if (distance(name, spec.name) <= 2)
            near += std::string(near.empty() ? "" : ", ") + spec.name;
    throw UsageError("unknown command or routine '" + given + "' (kiv help)" +
                     (near.empty() ? "" : "; did you mean " + near + "?"));
}

constexpr const char *list_usage =
    "usage: kiv list [--present]\n"
    "  every export of the interpreter module: its routine, the number of\n"
    "  arguments the export takes, whether the routine is in this build, and\n"
    "  whether kiv can call it (--present: only the routines in this build)\n";
constexpr const char *demo_usage =
    "usage: kiv demo\n"
    "  a short tour of the library's chapters\n";

bool wants_help(const std::vector<std::string> &args) {
    return std::any_of(args.begin(), args.end(),
                       [](const std::string &arg) { return arg == "--help" || arg == "-h"; });
}

int run_help(const std::vector<std::string> &args) {
    if (!args.empty() && args[0] == "describe") return run_describe({"--help"});
    if (!args.empty() && args[0] == "list") return std::fputs(list_usage, stdout), 0;
    if (!args.empty() && args[0] == "demo") return std::fputs(demo_usage, stdout), 0;
    if (args.empty()) {
        std::fputs(usage_text, stdout);
        std::printf("\nRoutines:\n");
        for (const auto &spec : routines()) std::printf("  %-9s %s\n", spec.name, spec.summary);
        return 0;
    }
    std::printf("usage: kiv %s\n", usage_of(routine_or_throw(args[0])).c_str());
    return 0;
}

}  // namespace

int run_calls(const std::vector<std::string> &args) {
    // Parse every call first, so that a mistake stops the run before any
    // routine is called.
    struct Call {
        const RoutineSpec *spec;
        Inputs inputs;
    };
    std::vector<Call> calls;
    for (std::size_t k = 0; k < args.size();) {
        std::size_t end = k + 1;
        while (end < args.size() && args[end] != "+") ++end;
        const RoutineSpec &spec = routine_or_throw(args[k]);
        const std::vector<std::string> words(args.begin() + static_cast<long>(k) + 1,
                                             args.begin() + static_cast<long>(end));
        try {
            calls.push_back({&spec, parse_inputs(spec, words)});
        } catch (const UsageError &error) {
            if (k == 0 && end == args.size()) throw;  // a single call
            throw UsageError("call " + std::to_string(calls.size() + 1) + " (" + spec.name +
                             "): " + error.what());
        }
        k = end + 1;
        if (end + 1 == args.size()) throw UsageError("nothing after '+'");
    }
    for (std::size_t c = 0; c < calls.size(); ++c) {
        const Call &call = calls[c];
        KivError fail = quiet_record();
        Outputs outputs;
        call.spec->call(call.inputs, outputs, &fail);
        if (call.spec->has_record && fail.code != 0) {
            const bool error = is_error_message(fail.message);
            const std::string which =
                calls.size() > 1 ? "call " + std::to_string(c + 1) + " (" + call.spec->name + ")"
                                 : std::string(call.spec->name);
            std::fprintf(stderr, "kiv: %s: %s %d (%s):\n%s\n", which.c_str(),
                         error ? "error" : "warning", fail.code,
                         kiv_error_name(fail.code) ? kiv_error_name(fail.code) : "?", fail.message);
            if (error) return 1;
        }
        outputs.print(stdout);
    }
    return 0;
}

int run_list(const std::vector<std::string> &args) {
    bool present_only = false;
    for (const auto &arg : args) {
        if (arg == "--present")
            present_only = true;
        else
            throw UsageError("list: unknown option '" + arg + "'");
    }
    Table table({"export", "routine", "export args", "status", "kiv"});
    int present = 0;
    for (const auto &entry : catalogue()) {
        const bool here = entry.present;
        present += here ? 1 : 0;
        if (present_only && !here) continue;
        const char *status = here ? "present" : entry.has_routine ? "absent" : "no routine";
        const std::string routine(entry.routine);
        table.add_row({std::string(entry.export_name), entry.has_routine ? routine : "-",
                       std::to_string(entry.arguments), status,
                       find_routine(routine) != nullptr ? "yes" : "-"});
    }
    table.print(stdout, "");
    std::printf("\n%d of %zu exports have their routine in this build.\n", present,
                catalogue().size());
    return 0;
}

}  // namespace kiv::tool

int main(int argc, char **argv) {
    using namespace kiv::tool;
    const std::vector<std::string> words(argv + 1, argv + argc);
    try {
        if (words.empty()) {
            std::fputs(usage_text, stderr);
            return 2;
        }
        const std::string &command = words[0];
        const std::vector<std::string> rest(words.begin() + 1, words.end());
        if (command == "help" || command == "--help" || command == "-h") return run_help(rest);
        if (command == "--version") {
            std::printf("kiv %d.%d.%d\n", KIV_VERSION_MAJOR, KIV_VERSION_MINOR, KIV_VERSION_PATCH);
            return 0;
        }
        if ((command == "demo" || command == "list") && wants_help(rest))
            return run_help({command});
        if (command != "describe" && rest.size() == 1 && wants_help(rest))
            return run_help({command});  // kiv g01eac --help
        if (command == "demo") {
            if (!rest.empty()) throw UsageError("demo takes no arguments");
            return run_demo();
        }
        if (command == "describe") return run_describe(rest);
        if (command == "list") return run_list(rest);
        return run_calls(words);
    } catch (const UsageError &error) {
        std::fprintf(stderr, "kiv: %s\n", error.what());
        return 2;
    } catch (const std::bad_alloc &) {
        std::fprintf(stderr, "kiv: out of memory\n");
        return 1;
    }
}
