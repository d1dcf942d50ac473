"""Compares what a library lets out with what its headers declare: public and protected operations that aren't inline,
what derived classes and inline code need besides, type data, all of one version, and nothing else.

    python3 check_exports.py --clang CLANG --nm NM --built LIBRARY --version NODE --include FOLDER --headers FOLDER
                             --names PREFIX...

Classes and functions count when they are exported (VXM_EXPORT, QOR_EXPORT) and a header in that folder declares them.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys

# A VarDecl in a class is a static field.
MEMBERS = {"CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl", "CXXConversionDecl", "VarDecl"}


def run(command, text=""):
    return subprocess.run(command, input=text, check=True, capture_output=True, text=True).stdout


def declarations(clang, options, headers, prefix):
    """The syntax trees of all declarations with the prefix in their name."""
    includes = "".join(f'#include "{header}"\n' for header in headers)
    text = run([clang, *options, "-fsyntax-only", "-x", "c++", "-Xclang", "-ast-dump=json", "-Xclang",
                f"-ast-dump-filter={prefix}", "-"], includes)
    decoder, at = json.JSONDecoder(), 0
    while text[at:at + 1]:
        declaration, at = decoder.raw_decode(text, at)
        yield declaration
        at = re.compile(r"\s*").match(text, at).end()


def has(declaration, kind):
    return any(part.get("kind") == kind for part in declaration.get("inner", ()))


def is_virtual(function):
    return function.get("virtual") or has(function, "OverrideAttr")


def is_defined_elsewhere(function):
    passed_over = ("isImplicit", "explicitlyDeleted", "explicitlyDefaulted", "inline", "constexpr", "pure")
    return not any(function.get(mark) for mark in passed_over) and not has(function, "CompoundStmt")


def is_needed(member):
    """Whether a private member is called from outside after all: by tables of derived classes, or by inline code."""
    return is_virtual(member) or member.get("isUsed") or member.get("isReferenced")


def operations_of(record):
    access = "private" if record["tagUsed"] == "class" else "public"
    for part in record.get("inner", ()):
        kind = part.get("kind")
        if kind == "AccessSpecDecl":
            access = part["access"]
        elif kind in MEMBERS and is_defined_elsewhere(part) and (access != "private" or is_needed(part)):
            yield part["mangledName"]
        elif kind == "CXXRecordDecl" and access != "private" and part.get("completeDefinition"):
            yield from operations_of(part)


def symbols_of(declaration):
    kind = declaration["kind"]
    if kind == "CXXRecordDecl" and declaration.get("completeDefinition") and has(declaration, "VisibilityAttr"):
        name = declaration["name"]
        yield from operations_of(declaration)
        if any(is_virtual(part) and is_defined_elsewhere(part) for part in declaration["inner"]):
            yield from (f"_Z{what}{len(name)}{name}" for what in ("TV", "TI", "TS"))
    elif kind == "FunctionDecl" and has(declaration, "VisibilityAttr") and is_defined_elsewhere(declaration):
        yield declaration["mangledName"]


def main():
    parser = argparse.ArgumentParser()
    for option in ("--clang", "--nm", "--built", "--version", "--include", "--headers"):
        parser.add_argument(option, required=True)
    # What the names of its classes and functions begin with; a syntax tree of everything would be far larger.
    parser.add_argument("--names", nargs="+", required=True)
    arguments = parser.parse_args()
    options = ["-std=c++20", f"-I{arguments.include}"]
    top = pathlib.Path(arguments.include)
    headers = sorted(str(path.relative_to(top)) for path in (top / arguments.headers).rglob("*.h"))

    def demangled(names):
        return run(["c++filt"], "\n".join(names)).splitlines()

    declared = set(demangled(name for prefix in arguments.names
                             for declaration in declarations(arguments.clang, options, headers, prefix)
                             for name in symbols_of(declaration)))
    rows = [line.split()[-2:] for line in run([arguments.nm, "-D", "--defined-only", arguments.built]).splitlines()]
    rows = [(kind, *name.split("@@")) for kind, name in rows if name.split("@")[0] != arguments.version]
    exported = set(demangled(name for _, name, *_ in rows))
    faults = [f'exported, though no header offers it: "{name}";' for name in sorted(exported - declared)]
    faults += [f'declared, but not exported: "{name}";' for name in sorted(declared - exported)]
    faults += [f"without the version {arguments.version}: {row[1]}" for row in rows if row[2:] != (arguments.version,)]
    # A unique symbol would keep the library in the process after it was unloaded.
    faults += [f"unique: {row[1]}" for row in rows if row[0] == "u"]
    print("\n".join(faults) or f"{len(exported)} symbols")
    return 1 if faults or not exported else 0


if __name__ == "__main__":
    sys.exit(main())
