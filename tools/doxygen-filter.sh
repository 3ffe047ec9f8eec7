#!/usr/bin/env bash
# Doxygen input filter: turns the opening comment of a source file (the
# block that says what the file computes, its method, references and
# measured accuracy) into the file's documentation, and the short comments
# after declarations in kiv.h into member documentation.
awk '
NR == 1 && /^\/\*/ { sub(/^\/\*/, "/** @file"); print; next }
NR == 1 && /^\/\// { print "/** @file"; opening = 1 }
opening && /^\/\// { line = $0; sub(/^\/\/ ?/, "", line); print " * " line; next }
opening { print " */"; opening = 0 }
/^KIV_API .*;[ \t]*\/\* / { sub(/;[ \t]*\/\* /, "; /**< ") }
{ print }
END { if (opening) print " */" }
' "$1"
