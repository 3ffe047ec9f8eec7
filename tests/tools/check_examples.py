#!/usr/bin/env python3
"""Runs every `$ kiv ...` example of the given Markdown files and compares
what the tool prints (standard output and error, in order) with the lines
that follow the command in the file, up to the next command or the end of
the code block. Exits 1 on any difference.

Usage: check_examples.py KIV FILE.md...
"""
import shlex
import subprocess
import sys


def examples(path):
    command, expected, found = None, [], []
    in_block = False
    for line in open(path, encoding="utf-8"):
        line = line.rstrip("\n")
        if line.startswith("```"):
            if command:
                found.append((command, expected))
            command, expected, in_block = None, [], not in_block
            continue
        if not in_block:
            continue
        if line.startswith("$ kiv "):
            if command:
                found.append((command, expected))
            command, expected = line[2:].split("  #")[0].split(" #")[0].strip(), []
        elif command:
            expected.append(line.rstrip())
    return found


def main():
    kiv, files = sys.argv[1], sys.argv[2:]
    failures = 0
    count = 0
    for path in files:
        for command, expected in examples(path):
            count += 1
            words = shlex.split(command)[1:]
            run = subprocess.run([kiv] + words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                 text=True)
            got = [line.rstrip() for line in run.stdout.splitlines()]
            if got != expected:
                failures += 1
                print(f"{path}: $ {command}\n--- documented\n" + "\n".join(expected) +
                      "\n--- printed\n" + "\n".join(got))
    print(f"{count - failures} passed, {failures} failed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
