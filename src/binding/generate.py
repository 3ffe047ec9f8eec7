#!/usr/bin/env python3
"""Writes the interpreter wrapper units (wrap_<group>.cpp) from catalogue.tsv.

Usage: generate.py [--output DIR]    (default: the directory of this script)

The catalogue holds one row per export: the export's name, the routine's
name, the number of arguments taken off the interpreter's list, the result
type (double, int, pointer, void), the chapter group, whether the last
argument is a KivError record, whether the wrapper substitutes a script
error handler, whether the routine is present in this build, and, for a
present routine, its C parameters ("type name; type name; ...").

Every unit is plain C++ that follows the frame of frame.hpp; the units are
committed, and scripts/check-binding.sh verifies that they match this
script's output.
"""
import argparse
import pathlib
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent

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


def read_catalogue(path):
    rows = []
    with open(path, newline="") as f:
        for line in f:
            if line.startswith("#") or not line.strip():
                continue
            fields = line.rstrip("\n").split("\t")
            export, routine, args, result, group, record, subst, present, params = fields
            rows.append({
                "export": export, "routine": routine, "args": int(args),
                "result": result, "group": group, "record": record == "1",
                "substitutes": subst == "1", "present": present == "1",
                "params": [p.strip() for p in params.split(";") if p.strip()],
            })
    return rows


def split_param(param):
    """'const double *x' -> ('const double *', 'x')."""
    cut = max(param.rfind(" "), param.rfind("*"))
    return param[:cut + 1].strip(), param[cut + 1:].strip()


def check(rows):
    problems = []
    for r in rows:
        if r["result"] not in C_RESULT:
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
    out.append("// Generated by src/binding/generate.py from src/binding/catalogue.tsv: not to")
    out.append("// be edited by hand. The frame itself is in frame.hpp.")
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


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--output", default=str(HERE))
    options = parser.parse_args()
    rows = read_catalogue(HERE / "catalogue.tsv")
    problems = check(rows)
    if problems:
        print("\n".join(problems), file=sys.stderr)
        return 1
    output = pathlib.Path(options.output)
    output.mkdir(parents=True, exist_ok=True)
    groups = {}
    for r in rows:
        groups.setdefault(r["group"], []).append(r)
    for group, members in groups.items():
        target = output / f"wrap_{group}.cpp"
        target.write_text(formatted(unit(group, members), HERE / target.name))
    return 0


if __name__ == "__main__":
    sys.exit(main())
