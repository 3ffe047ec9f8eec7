// Command-line arguments and outputs of `kiv <code> ARGS...`: parsing the
// inputs by kind, checking array lengths before a routine can read past
// them, and printing the outputs by name with round-trip digits.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <sstream>

#include "routines.hpp"
#include "text.hpp"

namespace kiv::tool {

namespace {

constexpr long long largest_array = 1LL << 26;

const char *kind_label(const ArgSpec &arg) {
    switch (arg.kind) {
        case ArgKind::Int:
            return "INT";
        case ArgKind::Double:
            return "NUMBER";
        case ArgKind::Enum:
            return arg.enum_type;
        case ArgKind::Text:
            return "TEXT";
        case ArgKind::Doubles:
            return "NUMBERS";
        case ArgKind::OptDoubles:
            return "NUMBERS|null";
        case ArgKind::Ints:
            return "INTS";
        case ArgKind::OptInts:
            return "INTS|null";
    }
    return "?";
}

// The members of the enumeration that `arg` accepts by name.
std::vector<std::string> accepted_members(const ArgSpec &arg) {
    std::vector<std::string> names;
    for (const auto &member : enum_members()) {
        if (std::strcmp(member.type, arg.enum_type) != 0) continue;
        if (arg.members != nullptr) {
            const std::string list = std::string(",") + arg.members + ",";
            if (list.find(std::string(",") + member.name + ",") == std::string::npos) continue;
        }
        names.push_back(member.name);
    }
    return names;
}

std::string joined(const std::vector<std::string> &names) {
    std::string text;
    for (const auto &name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
}

int parse_enum(const ArgSpec &arg, const std::string &word) {
    int value = 0;
    if (parse_int(word, value)) return value;  // a raw value, valid or not
    for (const auto &member : enum_members())
        if (word == member.name && std::strcmp(member.type, arg.enum_type) == 0) {
            for (const auto &name : accepted_members(arg))
                if (name == word) return member.value;
            throw UsageError(std::string("argument ") + arg.name + ": this routine does not take " +
                             word + " (" + joined(accepted_members(arg)) + ")");
        }
    throw UsageError(std::string("argument ") + arg.name + ": '" + word + "' is not a member of " +
                     kind_label(arg) + " (" + joined(accepted_members(arg)) + ")");
}

std::vector<int> to_ints(const std::vector<double> &values, const char *name) {
    std::vector<int> ints;
    ints.reserve(values.size());
    for (double v : values) {
        if (!(v >= -2147483648.0 && v <= 2147483647.0) || v != std::floor(v))
            throw UsageError(std::string("argument ") + name + ": " + round_trip(v) +
                             " is not an integer");
        ints.push_back(static_cast<int>(v));
    }
    return ints;
}

Inputs::Value parse_one(const ArgSpec &arg, const std::string &word) {
    const bool optional = arg.kind == ArgKind::OptDoubles || arg.kind == ArgKind::OptInts;
    if (optional && word == "null") return std::monostate{};
    switch (arg.kind) {
        case ArgKind::Int: {
            int value = 0;
            if (!parse_int(word, value))
                throw UsageError(std::string("argument ") + arg.name + ": not an integer: '" +
                                 word + "'");
            return value;
        }
        case ArgKind::Double: {
            double value = 0.0;
            if (!parse_double(word, value))
                throw UsageError(std::string("argument ") + arg.name + ": not a number: '" + word +
                                 "'");
            return value;
        }
        case ArgKind::Enum:
            return parse_enum(arg, word);
        case ArgKind::Text:
            return word;
        case ArgKind::Doubles:
        case ArgKind::OptDoubles:
            return read_numbers(word);
        case ArgKind::Ints:
        case ArgKind::OptInts:
            return to_ints(read_numbers(word), arg.name);
    }
    return std::monostate{};
}

template <typename T>
const T *checked_array(const Inputs::Value &value, const char *name, long long need) {
    if (std::holds_alternative<std::monostate>(value)) return nullptr;
    const auto &array = std::get<std::vector<T>>(value);
    const long long size = static_cast<long long>(array.size());
    if (need > size)
        throw UsageError(std::string("argument ") + name + " has " + std::to_string(size) +
                         " values but the call reads " + std::to_string(need));
    // More values than the call reads is a mistake too: they would be
    // silently ignored.
    if (need < size)
        throw UsageError(std::string("argument ") + name + " has " + std::to_string(size) +
                         " values but the call reads only " + std::to_string(std::max(need, 0LL)));
    return array.data();
}

bool is_array(ArgKind kind) {
    return kind == ArgKind::Doubles || kind == ArgKind::OptDoubles || kind == ArgKind::Ints ||
           kind == ArgKind::OptInts;
}

std::size_t array_size(const Inputs::Value &value) {
    if (const auto *d = std::get_if<std::vector<double>>(&value)) return d->size();
    if (const auto *i = std::get_if<std::vector<int>>(&value)) return i->size();
    return 0;
}

}  // namespace

const double *Inputs::doubles(std::size_t k, const char *name, long long need) const {
    return checked_array<double>(values_[k], name, need);
}

const int *Inputs::ints(std::size_t k, const char *name, long long need) const {
    return checked_array<int>(values_[k], name, need);
}

std::string enum_name(int value) {
    for (const auto &member : enum_members())
        if (member.value == value) return member.name;
    return std::to_string(value);
}

Inputs parse_inputs(const RoutineSpec &spec, const std::vector<std::string> &words) {
    if (words.size() != spec.inputs.size())
        throw UsageError(std::string(spec.name) + " takes " + std::to_string(spec.inputs.size()) +
                         " argument" + (spec.inputs.size() == 1 ? "" : "s") + ", " +
                         std::to_string(words.size()) + " given\nusage: kiv " + usage_of(spec));
    // Standard input can be read only once.
    int from_stdin = 0;
    for (std::size_t k = 0; k < words.size(); ++k)
        from_stdin += words[k] == "-" && is_array(spec.inputs[k].kind);
    if (from_stdin > 1) throw UsageError("only one argument can be read from standard input ('-')");
    std::vector<Inputs::Value> values;
    for (std::size_t k = 0; k < words.size(); ++k) {
        const ArgSpec &arg = spec.inputs[k];
        // A length given as "-" is taken from the array it sizes.
        if (words[k] == "-" && arg.kind == ArgKind::Int && arg.sizes >= 0) {
            values.push_back(std::monostate{});
            continue;
        }
        values.push_back(parse_one(arg, words[k]));
    }
    for (std::size_t k = 0; k < words.size(); ++k)
        if (std::holds_alternative<std::monostate>(values[k]) &&
            spec.inputs[k].kind == ArgKind::Int) {
            const auto size = array_size(values[static_cast<std::size_t>(spec.inputs[k].sizes)]);
            if (size > 2147483647u) throw UsageError("array too long");
            values[k] = static_cast<int>(size);
        }
    return Inputs(std::move(values));
}

// The meaning of parameter `name` from the record's "name: meaning; ..."
// text ("" when none is given).
std::string meaning_of(const RoutineSpec &spec, const std::string &name) {
    std::istringstream items(spec.arguments);
    for (std::string item; std::getline(items, item, ';');) {
        const auto colon = item.find(':');
        if (colon == std::string::npos) continue;
        const auto first = item.find_first_not_of(' ');
        if (item.substr(first, colon - first) == name) {
            const auto start = item.find_first_not_of(' ', colon + 1);
            return start == std::string::npos ? "" : item.substr(start);
        }
    }
    return "";
}

std::string usage_of(const RoutineSpec &spec) {
    std::string text = spec.name;
    for (const auto &arg : spec.inputs) text += std::string(" ") + arg.name;
    text += "\n  ";
    text += spec.summary;
    for (const auto &arg : spec.inputs) {
        text += std::string("\n  ") + arg.name + ": " + kind_label(arg);
        if (arg.kind == ArgKind::Enum) text += " (" + joined(accepted_members(arg)) + ")";
        if (arg.kind == ArgKind::Int && arg.sizes >= 0)
            text += std::string(" (- for the length of ") + spec.inputs[arg.sizes].name + ")";
        const std::string meaning = meaning_of(spec, arg.name);
        if (!meaning.empty()) text += "\n      " + meaning;
    }
    // The outputs: the parameters described that are not inputs.
    std::string outputs;
    std::istringstream items(spec.arguments);
    for (std::string item; std::getline(items, item, ';');) {
        const auto first = item.find_first_not_of(' ');
        const auto colon = item.find(':');
        if (first == std::string::npos || colon == std::string::npos) continue;
        const std::string name = item.substr(first, colon - first);
        bool input = false;
        for (const auto &arg : spec.inputs) input = input || name == arg.name;
        if (!input) outputs += "\n  " + name + ": " + meaning_of(spec, name);
    }
    if (!outputs.empty()) text += "\n prints:" + outputs;
    text += std::string("\n C: ") + spec.signature;
    if (*spec.faults != '\0') {
        text += "\n faults, in the order checked:";
        std::istringstream faults(spec.faults);
        for (std::string fault; std::getline(faults, fault, ';');)
            text += "\n  " + fault.substr(fault.find_first_not_of(' '));
    }
    return text;
}

std::vector<double> out_doubles(long long count) {
    if (count > largest_array) throw UsageError("output array too large");
    return std::vector<double>(static_cast<std::size_t>(std::max(count, 1LL)), std::nan(""));
}

std::vector<int> out_ints(long long count) {
    if (count > largest_array) throw UsageError("output array too large");
    return std::vector<int>(static_cast<std::size_t>(std::max(count, 1LL)), 0);
}

void Outputs::scalar(const char *name, double value) {
    items_.push_back({name, {round_trip(value)}, 0, true});
}

void Outputs::integer(const char *name, long value) {
    items_.push_back({name, {std::to_string(value)}, 0, true});
}

void Outputs::vector(const char *name, std::span<const double> values) {
    Item item{name, {}, 0, false};
    for (double v : values) item.cells.push_back(round_trip(v));
    items_.push_back(std::move(item));
}

void Outputs::vector(const char *name, std::span<const int> values) {
    Item item{name, {}, 0, false};
    for (int v : values) item.cells.push_back(std::to_string(v));
    items_.push_back(std::move(item));
}

void Outputs::matrix(const char *name, const double *values, int rows, int cols, int stride) {
    Item item{name, {}, std::max(cols, 1), false};
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < cols; ++j)
            item.cells.push_back(round_trip(values[static_cast<std::size_t>(i) * stride + j]));
    items_.push_back(std::move(item));
}

std::string Outputs::text() const {
    // A single unnamed result prints as the bare number, for scripts.
    if (items_.size() == 1 && items_[0].is_scalar && items_[0].name == "result")
        return items_[0].cells[0] + "\n";
    std::string text;
    for (const auto &item : items_) {
        if (item.columns == 0) {
            text += item.name + " =";
            for (const auto &cell : item.cells) text += " " + cell;
            text += "\n";
            continue;
        }
        std::size_t width = 0;
        for (const auto &cell : item.cells) width = std::max(width, cell.size());
        text += item.name + " =\n";
        for (std::size_t i = 0; i < item.cells.size(); i += item.columns) {
            text += " ";
            for (std::size_t j = i; j < i + static_cast<std::size_t>(item.columns); ++j) {
                text.append(width + 1 - item.cells[j].size(), ' ');
                text.append(item.cells[j]);
            }
            text += "\n";
        }
    }
    return text;
}

void Outputs::print(std::FILE *out) const {
    std::fputs(text().c_str(), out);
}

const RoutineSpec *find_routine(std::string_view name) {
    for (const auto &spec : routines())
        if (name == spec.name) return &spec;
    return nullptr;
}

}  // namespace kiv::tool
