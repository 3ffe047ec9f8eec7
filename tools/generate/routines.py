#!/usr/bin/env python3
"""Writes everything that is derived from the routine records (src/routines.tsv).

Usage: routines.py            write the derived files
       routines.py --check    compare them with what would be written, and the
                              declarations of include/kiv.h with the records;
                              exit 1 on any difference

One record per routine (one line of src/routines.tsv): the export's name ("-"
for a routine with no interpreter export), the routine's name, the number of
arguments the export takes off the interpreter's list, the result type, the
chapter group, whether the last argument is a KivError record, whether the
wrapper substitutes a script error handler, whether the routine is present in
this build, its C parameters ("type name {annotation}; ..."), whether any
routine stands behind the export at all, a one-line summary, an example
of its arguments on the kiv command line (run by the reliability tests for
every routine that their own calls do not cover; "-" keeps a routine off the
command line), the meaning of each argument ("name: meaning; ...", for
`kiv help` and the docs), and its faults in the order they are checked
("condition: CODE; ...").

The annotation of a pointer parameter tells the kiv tool how to fill it:
  {in LEN}    an input array of LEN elements    {opt LEN}  the same, or null
  {out}       a scalar output                   {out LEN}  an output array
  {inout}     a scalar read and written         {inout LEN} an array likewise
  {matrix ROWS COLS STRIDE}  an output matrix of ROWS rows with row stride STRIDE
  show EXPR   print only the first EXPR elements (EXPR may name an output)
  print NAME  the name under which the value is printed (and declared in kiv.h)
  members A,B the members of an enumeration the routine accepts (default: all)
LEN and EXPR are C++ expressions without blanks over the other parameters and
the helpers span_of(rows,cols,stride), packed(m) and nonneg(n). A present
routine whose every pointer parameter is annotated can be called by `kiv`.

Derived files: the interpreter wrapper units src/binding/wrap_<group>.cpp,
the kiv tool's routine table tools/kiv/routine_table.cpp and its export list
tools/kiv/catalogue.cpp, and the routine list in docs/cli.md.
"""
import argparse
import re
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
RECORDS = ROOT / "src" / "routines.tsv"
BINDING = ROOT / "src" / "binding"

GROUP_TITLES = {
    "g01": "G01 group: simple calculations, distributions and their inverses",
    "g02": "G02 group: correlation and regression (all but the robust routines "
           "g02hbc, g02hdc, g02hfc, g02hlc and g02hmc, which are groups of "
           "their own)",
    "g02hbc": "g02hbc group: robust regression with a user weight function",
    "g02hdc": "g02hdc group: robust regression with user chi and psi functions",
    "g02hfc": "g02hfc group: robust regression, asymptotic variance-covariance "
              "matrix with user functions",
    "g02hlc": "g02hlc group: robust covariance estimation with a user weight "
              "function",
    "g02hmc": "g02hmc group: robust covariance estimation with a user weight "
              "function",
    "g03": "G03 group: multivariate methods",
    "g04": "G04 group: analysis of variance",
    "g05": "G05 group: random numbers",
    "g07": "G07 group: univariate estimation (all but g07dcc)",
    "g07dcc": "g07dcc group: robust location and scale with user functions",
    "g08": "G08 group: nonparametric statistics",
    "g10": "G10 group: smoothing",
    "g11": "G11 group: contingency tables",
    "g12": "G12 group: survival analysis",
    "g13": "G13 group: time series",
    "s": "S group: special functions",
    "x02": "X02 group: machine constants",
    "x04": "X04 group: input/output and workspace utilities",
}

# Script-function parameters of the callback groups: (trampoline name,
# what it stands for, C result, C parameters), in slot order.
CALLBACKS = {
    "g02hbc": [("weight", "the weight function", "double", ["double t", "void *work"])],
    "g02hdc": [("chi", "the chi function", "double", ["double t", "void *work"]),
               ("psi", "the psi function", "double", ["double t", "void *work"])],
    "g02hfc": [("function1", "the first function", "double", ["double t", "void *work"]),
               ("function2", "the second function", "double", ["double t", "void *work"])],
    "g02hlc": [("weight", "the weight function", "void",
                ["double t"] + [f"void *work{i}" for i in range(1, 6)])],
    "g02hmc": [("weight", "the weight function", "void",
                ["double t"] + [f"void *work{i}" for i in range(1, 4)])],
    "g07dcc": [("function1", "the first function", "double", ["double t", "void *work"]),
               ("function2", "the second function", "double", ["double t", "void *work"])],
}

C_RESULT = {"double": "double", "int": "int", "pointer": "void *", "void": "void"}
ZERO = {"double": "0.0", "int": "0", "pointer": "nullptr"}
# Groups that keep the handle in a local of the call, and groups without
# arguments at all.
LOCAL_HANDLE = {"x04"}
NO_SLOTS = {"x02"}


def parse_param(text):
    """'const double *x {in n}' -> {'decl': 'const double *x', 'ctype': 'const double *',
    'name': 'x', 'role': 'in', 'len': 'n', ...}."""
    decl, _, note = text.partition("{")
    decl = decl.strip()
    ctype, name = split_param(decl)
    param = {"decl": decl, "ctype": ctype, "name": name, "role": None, "len": None,
             "show": None, "print": name, "matrix": None, "members": None}
    words = note.rstrip("}").split()
    k = 0
    while k < len(words):
        word = words[k]
        if word in ("in", "opt", "out", "inout"):
            param["role"] = word
            if k + 1 < len(words) and words[k + 1] not in ("show", "print"):
                param["len"] = words[k + 1]
                k += 1
        elif word == "matrix":
            param["role"] = "out"
            param["matrix"] = words[k + 1:k + 4]
            k += 3
        elif word in ("show", "print", "members"):
            param[word] = words[k + 1]
            k += 1
        else:
            raise ValueError(f"unknown annotation '{word}' in '{text}'")
        k += 1
    return param


def read_catalogue(path):
    rows = []
    with open(path, newline="") as f:
        for line in f:
            if line.startswith("#") or not line.strip():
                continue
            fields = line.rstrip("\n").split("\t")
            (export, routine, args, result, group, record, subst, present, params, exists,
             summary, example, arguments, faults) = fields
            parsed = [parse_param(p) for p in params.split(";") if p.strip()]
            rows.append({
                "export": export, "routine": routine, "args": int(args),
                "result": result, "group": group, "record": record == "1",
                "substitutes": subst == "1", "present": present == "1",
                "params": [p["decl"] for p in parsed], "parsed": parsed,
                "exists": exists == "1", "summary": summary, "example": example,
                "arguments": arguments, "faults": faults,
            })
    return rows


def split_param(param):
    """'const double *x' -> ('const double *', 'x')."""
    cut = max(param.rfind(" "), param.rfind("*"))
    return param[:cut + 1].strip(), param[cut + 1:].strip()


def check(rows):
    problems = []
    for r in rows:
        if r["result"] not in C_RESULT and not (r["export"] == "-" and r["result"] == "long"):
            problems.append(f"{r['export']}: unknown result type {r['result']}")
        if r["present"] and len(r["params"]) != r["args"]:
            problems.append(f"{r['export']}: {len(r['params'])} parameters, {r['args']} listed")
        if r["present"] and r["record"] != (bool(r["params"]) and
                                            r["params"][-1] == "KivError *fail"):
            problems.append(f"{r['export']}: record flag disagrees with the parameters")
        if r["substitutes"] and not r["record"]:
            problems.append(f"{r['export']}: substitutes without a record")
        if r["group"] not in GROUP_TITLES:
            problems.append(f"{r['export']}: unknown group {r['group']}")
        if r["present"] and not r["summary"]:
            problems.append(f"{r['routine']}: a present routine needs a summary")
        for p in r["parsed"]:
            if p["role"] and "*" not in p["ctype"]:
                problems.append(f"{r['routine']}: {p['name']} is annotated but not a pointer")
        if r["present"] and cli_callable(r):
            named = [a.split(":")[0].strip() for a in r["arguments"].split(";") if a.strip()]
            if named and named[-1] == "result":
                named.pop()  # the meaning of the result, after the parameters
            wanted = [p["name"] for p in r["parsed"] if p["ctype"] != "KivError *"]
            if named != wanted:
                problems.append(f"{r['routine']}: the arguments column describes {named}, "
                                f"the parameters are {wanted}")
    return problems


def wrapper(r):
    result = r["result"]
    lines = [f"KIV_API {C_RESULT[result]} {r['export']}(void *varg) {{".replace("* ", "*")]
    body = []
    if r["args"] == 0:
        body.append("(void)varg;")
        if r["present"]:
            call = f"{r['routine']}()"
            body.append(f"return {call};" if result != "void" else f"{call};")
        else:
            body.append(f'kiv::binding::print_not_available("{r["routine"]}");')
            if result != "void":
                body.append(f"return {ZERO[result]};")
        return lines + ["    " + b for b in body] + ["}"]
    if r["group"] in LOCAL_HANDLE:
        body.append("kiv::binding::LocalSlots slots;")
    body.append("Frame frame(slots, varg);")
    if r["present"]:
        names = []
        for p in r["params"]:
            ctype, name = split_param(p)
            names.append(name)
            body.append(f"const auto {name} = frame.arg<{ctype}>();")
        call = f"{r['routine']}({', '.join(names)})"
    else:
        skipped = r["args"] - 1 if r["record"] else r["args"]
        body.append(f"frame.skip({skipped});")
        if r["record"]:
            body.append("const auto fail = frame.arg<KivError *>();")
            call = f'kiv::binding::report_not_available("{r["routine"]}", fail)'
        else:
            call = f'kiv::binding::print_not_available("{r["routine"]}")'
    if r["substitutes"]:
        body.append("const HandlerSubstitution substitution(slots.saved_handler, fail, "
                    "error_handler);")
    if r["present"] and result != "void":
        body.append(f"return {call};")
    else:
        body.append(f"{call};")
        if result != "void":
            body.append(f"return {ZERO[result]};")
    return lines + ["    " + b for b in body] + ["}"]


def unit(group, rows):
    out = []
    title = GROUP_TITLES[group]
    out.append(f"// Interpreter exports of the {title}.")
    out.append("//")
    out.append("// Generated by tools/generate/routines.py from src/routines.tsv: not to be")
    out.append("// edited by hand. The frame itself is in frame.hpp.")
    out.append('#include "binding/frame.hpp"')
    out.append("")
    uses_frame = any(r["args"] > 0 for r in rows)
    substitutes = any(r["substitutes"] for r in rows)
    callbacks = CALLBACKS.get(group, [])
    if uses_frame:
        out.append("using kiv::binding::Frame;")
    if substitutes:
        out.append("using kiv::binding::HandlerSubstitution;")
    if group not in NO_SLOTS and group not in LOCAL_HANDLE:
        out.append("")
        out.append("namespace {")
        out.append("")
        if callbacks:
            count = ["one script callback", "two script callbacks"][len(callbacks) - 1]
            what = f"Interpreter handle and {count}"
        elif group == "s":
            what = "Interpreter handle"
        else:
            what = "Interpreter handle and saved script error handler"
        out.append(f"// {what} of the group, per thread.")
        out.append(f"thread_local kiv::binding::GroupSlots<{len(callbacks)}> slots;")
        if substitutes:
            out.append("")
            out.append("// The group's error-handler trampoline: the routine's report reaches the")
            out.append("// script's handler through the interpreter.")
            out.append("void error_handler(const char *message, int code, const char *routine) {")
            out.append("    kiv::binding::forward_error(slots, message, code, routine);")
            out.append("}")
        out.append("")
        out.append("}  // namespace")
    if callbacks:
        out.append("")
        out.append(f"// Callback trampolines of {group}: each forwards its arguments untouched to")
        out.append("// the script function held in its slot and returns that function's result.")
        out.append(f"namespace kiv::binding::{group} {{")
        for index, (name, what, cresult, params) in enumerate(callbacks):
            out.append("")
            out.append(f"// {what[0].upper() + what[1:]} (slot {index}).")
            out.append(f"{cresult} {name}({', '.join(params)}) {{")
            args = ", ".join(split_param(p)[1] for p in params)
            if cresult == "void":
                out.append(f"    Ch_CallFuncByAddr(slots.handle, slots.callbacks[{index}], "
                           f"nullptr, {args});")
            else:
                out.append(f"    {cresult} result = 0.0;")
                out.append(f"    Ch_CallFuncByAddr(slots.handle, slots.callbacks[{index}], "
                           f"&result, {args});")
                out.append("    return result;")
            out.append("}")
        out.append("")
        out.append(f"}}  // namespace kiv::binding::{group}")
    out.append("")
    out.append('extern "C" {')
    for r in rows:
        out.append("")
        out.extend(wrapper(r))
    out.append("")
    out.append('}  // extern "C"')
    return "\n".join(out) + "\n"


def formatted(text, path):
    """The text as clang-format lays it out with the repository's style."""
    clang_format = shutil.which("clang-format")
    if clang_format is None:
        print("clang-format not found: units written unformatted", file=sys.stderr)
        return text
    return subprocess.run([clang_format, f"--assume-filename={path}"], input=text,
                          capture_output=True, text=True, check=True).stdout




# ---- the kiv tool's routine table ------------------------------------------

SCALAR_KINDS = {"int": ("Int", "given.integer({k})"), "double": ("Double", "given.real({k})")}


def is_enum(ctype):
    return ctype.startswith("Kiv_")


def cli_callable(r):
    """A present routine whose every parameter the tool knows how to fill, and
    whose example is not "-" (no meaning on a command line)."""
    if not r["present"] or r["example"] == "-":
        return False
    for p in r["parsed"]:
        ctype = p["ctype"]
        if ctype == "KivError *":
            continue
        if ctype in SCALAR_KINDS or is_enum(ctype) or ctype == "const char *":
            continue
        if p["role"] is None or ctype.replace("const ", "") not in ("double *", "int *"):
            return False
    return True


def cli_entry(r):
    """The RoutineSpec initializer of one routine: its inputs and its call.

    The lambda's own parameters are `given` (the parsed inputs), `printed`
    (the outputs) and `fail`; its locals carry the routine's parameter names,
    so that the length expressions of the records read as written. Scalars
    are read before the arrays whose lengths they give."""
    inputs, scalars, body, args, prints = [], [], [], [], []
    for p in r["parsed"]:
        ctype, name, role = p["ctype"], p["name"], p["role"]
        if name in ("given", "printed"):
            raise ValueError(f"{r['routine']}: parameter name {name} is reserved")
        base = ctype.replace("const ", "").replace("*", "").strip()
        k = len(inputs)
        if ctype == "KivError *":
            args.append("fail")
        elif ctype in SCALAR_KINDS:
            kind, read = SCALAR_KINDS[ctype]
            inputs.append(f'{{"{name}", ArgKind::{kind}}}')
            scalars.append(f"const {ctype} {name} = {read.format(k=k)};")
            args.append(name)
        elif ctype == "const char *":
            inputs.append(f'{{"{name}", ArgKind::Text}}')
            scalars.append(f"const char *{name} = given.text({k});")
            args.append(name)
        elif is_enum(ctype):
            members = f', -1, "{p["members"]}"' if p["members"] else ""
            inputs.append(f'{{"{name}", ArgKind::Enum, "{ctype}"{members}}}')
            scalars.append(f"const auto {name} = static_cast<{ctype}>(given.integer({k}));")
            args.append(name)
        elif role in ("in", "opt"):
            kind = ("Opt" if role == "opt" else "") + ("Doubles" if base == "double" else "Ints")
            reader = "doubles" if base == "double" else "ints"
            inputs.append(f'{{"{name}", ArgKind::{kind}}}')
            body.append(f'const {base} *{name} = given.{reader}({k}, "{name}", {p["len"]});')
            args.append(name)
        elif role == "inout" and p["len"] is None:
            kind, read = SCALAR_KINDS[base]
            inputs.append(f'{{"{name}", ArgKind::{kind}}}')
            scalars.append(f"{base} {name} = {read.format(k=k)};")
            args.append(f"&{name}")
            prints.append(("scalar", p))
        elif role == "inout":
            kind = "Doubles" if base == "double" else "Ints"
            reader = "doubles" if base == "double" else "ints"
            inputs.append(f'{{"{name}", ArgKind::{kind}}}')
            body.append(f'auto {name} = copy_of(given.{reader}({k}, "{name}", {p["len"]}), '
                        f'{p["len"]});')
            args.append(f"{name}.data()")
            prints.append(("vector", p))
        elif p["matrix"]:
            rows, _, stride = p["matrix"]
            body.append(f"auto {name} = out_doubles(nonneg({rows}) * nonneg({stride}));")
            args.append(f"{name}.data()")
            prints.append(("matrix", p))
        elif p["len"] is None:
            body.append(f"{base} {name} = 0;")
            args.append(f"&{name}")
            prints.append(("scalar", p))
        else:
            maker = "out_doubles" if base == "double" else "out_ints"
            body.append(f"auto {name} = {maker}({p['len']});")
            args.append(f"{name}.data()")
            prints.append(("vector", p))
    body = scalars + body
    # A length that sizes an input array may be given as "-": the array's length.
    names = [i.split('"')[1] for i in inputs]
    for k, entry in enumerate(inputs):
        if "ArgKind::Int}" not in entry:
            continue
        sized = [p for role in ("in", "inout", "opt") for p in r["parsed"]
                 if p["role"] == role and p["len"] == names[k] and p["name"] in names]
        if sized:
            inputs[k] = entry[:-1] + f", nullptr, {names.index(sized[0]['name'])}}}"
    call = f"{r['routine']}({', '.join(args)})"
    if r["result"] in ("double", "int", "long"):
        method = "scalar" if r["result"] == "double" else "integer"
        body.append(f'printed.{method}("result", {call});')
    else:
        body.append(f"{call};")
    for how, p in prints:
        name, shown = p["name"], p["print"]
        base = p["ctype"].replace("const ", "").replace("*", "").strip()
        if how == "scalar":
            method = "scalar" if base == "double" else "integer"
            body.append(f'printed.{method}("{shown}", {name});')
        elif how == "matrix":
            rows, cols, stride = p["matrix"]
            body.append(f'printed.matrix("{shown}", {name}.data(), {rows}, {cols}, {stride});')
        else:
            body.append(f'printed.vector("{shown}", first({name}, {p["show"] or p["len"]}));')
    uses = "".join(body)
    params = ("In given" if "given." in uses else "In")
    params += ", Outputs &printed" if "printed." in uses else ", Outputs &"
    params += ", KivError *fail" if "fail" in args else ", KivError *"
    lines = [f'{{"{r["routine"]}", "{r["summary"]}", {{{", ".join(inputs)}}}, '
             f'{"true" if r["record"] else "false"}, []({params}) {{']
    lines += ["    " + b for b in body]
    def quoted(text):
        return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'
    c_result = {"pointer": "void *"}.get(r["result"], r["result"])
    signature = f"{c_result} {r['routine']}({', '.join(p['decl'] for p in r['parsed']) or 'void'})"
    lines.append(f'}}, {quoted(r["example"])}, {quoted(r["arguments"])}, '
                 f'{quoted(signature)}, {quoted(r["faults"])}}},')
    return lines


def enum_members(header):
    """(member, type) pairs of every enumeration of kiv.h but the error codes."""
    members = []
    for body, name in re.findall(r"typedef KIV_ENUM_TYPE\(\w+\)\s*\{([^}]*)\}\s*(\w+);",
                                 header):
        for member in re.findall(r"(Kiv_\w+)\s*=", body):
            members.append((member, name))
    return members


def routine_table(rows, header):
    out = ["// The routines that `kiv <code> ARGS...` calls and the enumeration members it",
           "// reads by name. Generated by tools/generate/routines.py from src/routines.tsv",
           "// and include/kiv.h: not to be edited by hand.",
           '#include "routines.hpp"',
           "",
           "namespace kiv::tool {",
           "",
           "const std::vector<EnumMember> &enum_members() {",
           "    static const std::vector<EnumMember> members = {"]
    out += [f'    {{"{m}", {m}, "{t}"}},' for m, t in enum_members(header)]
    out += ["    };", "    return members;", "}", "",
            "const std::vector<RoutineSpec> &routines() {",
            "    using In = const Inputs &;",
            "    static const std::vector<RoutineSpec> table = {"]
    for r in sorted((r for r in rows if cli_callable(r)), key=lambda r: r["routine"]):
        out += cli_entry(r)
    out += ["    };", "    return table;", "}", "", "}  // namespace kiv::tool"]
    return "\n".join(out) + "\n"


# ---- the export list of `kiv list` ------------------------------------------

def export_list(rows):
    exports = [r for r in rows if r["export"] != "-"]
    out = ["// The export catalogue of the interpreter module, for `kiv list`: every export",
           "// with the number of arguments it takes off the interpreter's list, whether a",
           "// routine stands behind it at all, and whether that routine is in this build.",
           "// Generated by tools/generate/routines.py from src/routines.tsv: not to be",
           "// edited by hand.",
           '#include "catalogue.hpp"',
           "",
           "namespace kiv::tool {",
           "",
           "const std::vector<CatalogueEntry> &catalogue() {",
           "    static const std::vector<CatalogueEntry> entries = {"]
    for r in exports:
        out.append(f'    {{"{r["export"]}", "{r["routine"]}", {r["args"]}, '
                   f'{"true" if r["exists"] else "false"}, {"true" if r["present"] else "false"}}},')
    out += ["    };", "    return entries;", "}", "", "}  // namespace kiv::tool"]
    return "\n".join(out) + "\n"


# ---- docs/cli.md -------------------------------------------------------------

DOC_BEGIN = "<!-- routine list: generated by tools/generate/routines.py -->"
DOC_END = "<!-- end of routine list -->"


def cli_doc(text, rows):
    lines = [DOC_BEGIN, "", "| routine | computes | example |", "|---|---|---|"]
    for r in sorted((r for r in rows if cli_callable(r)), key=lambda r: r["routine"]):
        example = f"`kiv {r['routine']} {r['example']}`".replace(" `", "`")
        lines.append(f"| `{r['routine']}` | {r['summary'].replace('|', chr(92) + '|')} "
                     f"| {example} |")
    lines += ["", DOC_END]
    head, _, rest = text.partition(DOC_BEGIN)
    _, _, tail = rest.partition(DOC_END)
    return head + "\n".join(lines) + tail


# ---- the header against the records -----------------------------------------

def normalise(decl):
    """'const double x[]' and 'const double *x' alike: (type, name)."""
    decl = " ".join(decl.split())
    array = re.match(r"^(.*?)\s*(\w+)\s*\[[^\]]*\]$", decl)
    if array:
        return (array.group(1).strip() + " *").replace("  ", " "), array.group(2)
    ctype, name = split_param(decl)
    return ctype.replace(" *", "*").replace("*", " *").replace("  ", " ").strip(), name


def declarations(header):
    found = {}
    for result, name, params in re.findall(r"KIV_API\s+([\w\s\*]+?)\s*\b(\w+)\s*\(([^)]*)\)\s*;",
                                           header):
        params = params.strip()
        plist = [] if params in ("", "void") else [normalise(p) for p in params.split(",")]
        found[name] = (result.strip(), plist)
    return found


def header_problems(rows, header):
    problems = []
    declared = declarations(header)
    records = {r["routine"]: r for r in rows}
    for name, (result, plist) in declared.items():
        if name.startswith("kiv_"):
            continue  # the reporting runtime, not a routine
        r = records.get(name)
        if r is None:
            problems.append(f"kiv.h declares {name}, which has no record")
            continue
        if not r["present"]:
            problems.append(f"kiv.h declares {name}, whose record is not marked present")
            continue
        want = [(normalise(p["decl"])[0], p["print"]) for p in r["parsed"]]
        if plist != want:
            problems.append(f"{name}: kiv.h has ({plist}), the record ({want})")
        c_result = {"pointer": "void *"}.get(r["result"], r["result"])
        if result.replace(" *", "*") != c_result.replace(" *", "*"):
            problems.append(f"{name}: kiv.h returns {result}, the record {r['result']}")
    for r in rows:
        if r["present"] and r["routine"] not in declared:
            problems.append(f"{r['routine']} is marked present but not declared in kiv.h")
    return problems


# ---- main --------------------------------------------------------------------

def outputs(rows, header):
    """Every derived file: path -> text."""
    files = {}
    groups = {}
    for r in rows:
        if r["export"] != "-":
            groups.setdefault(r["group"], []).append(r)
    for group, members in groups.items():
        path = BINDING / f"wrap_{group}.cpp"
        files[path] = formatted(unit(group, members), path)
    table = ROOT / "tools" / "kiv" / "routine_table.cpp"
    files[table] = formatted(routine_table(rows, header), table)
    listing = ROOT / "tools" / "kiv" / "catalogue.cpp"
    files[listing] = formatted(export_list(rows), listing)
    doc = ROOT / "docs" / "cli.md"
    files[doc] = cli_doc(doc.read_text(), rows)
    return files


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true")
    options = parser.parse_args()
    rows = read_catalogue(RECORDS)
    header = (ROOT / "include" / "kiv.h").read_text()
    problems = check(rows) + header_problems(rows, header)
    if problems:
        print("\n".join(problems), file=sys.stderr)
        return 1
    files = outputs(rows, header)
    stale = sorted(set(BINDING.glob("wrap_*.cpp")) - set(files))
    if options.check:
        differ = [p for p, text in files.items() if not p.exists() or p.read_text() != text]
        for path in differ + stale:
            print(f"{path.relative_to(ROOT)}: differs from the records "
                  "(run python3 tools/generate/routines.py)", file=sys.stderr)
        if differ or stale:
            return 1
        print(f"{len(files)} derived files and kiv.h match {len(rows)} routine records")
        return 0
    for path, text in files.items():
        if not path.exists() or path.read_text() != text:
            path.write_text(text)
    for path in stale:
        path.unlink()
    return 0


if __name__ == "__main__":
    sys.exit(main())
