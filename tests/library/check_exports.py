"""Checks what the library exports: its classes with their members and type data, one free operator, nothing else.

    python3 check_exports.py NM LIBRARY
"""

import re
import subprocess
import sys

CLASSES = ("VXMBomGenerator", "VXMProcessBomGenerator", "VXMResourceBomGenerator", "VXMFabFlowNode",
           "VXMFabProcessFlowNode", "VXMFabResourceFlowNode", "VXMFabMBOMNode", "StrX", "VXMBomNavObject",
           "VXMPFNavigModifyMBOMObject", "VXMFabBomViewer")
FREE = "operator<(QORVar<QORBaseUnknown> const&, QORVar<QORBaseUnknown> const&)"
TYPE_DATA = ("vtable for ", "typeinfo for ", "typeinfo name for ")


def exported_symbols(nm, library):
    listing = subprocess.run([nm, "-DC", "--defined-only", library], check=True, capture_output=True, text=True).stdout
    return [line.split(None, 2)[1:] for line in listing.splitlines()]


def owner_of(name):
    """The class that a symbol belongs to, None for a symbol that is no direct member or type data of a class."""
    for prefix in TYPE_DATA:
        if name.startswith(prefix):
            return name[len(prefix):]
    member = re.fullmatch(r"(\w+)::~?\w+(\(.*\)( const)?)?", name)
    return member.group(1) if member else None


def main():
    symbols = exported_symbols(*sys.argv[1:])
    names = {name for _, name in symbols}
    owners = {owner_of(name) for name in names}
    faults = [f"exported beyond the classes: {name}" for name in sorted(names)
              if name != FREE and owner_of(name) not in CLASSES]
    faults += [f"not exported: {wanted}" for wanted in CLASSES if wanted not in owners]
    faults += [f"not exported: {wanted}" for wanted in [FREE] if wanted not in names]
    faults += [f"type data not exported: {wanted}" for wanted in CLASSES if wanted != "StrX"
               and f"vtable for {wanted}" not in names]
    # A unique symbol would keep the library in the process after it was unloaded.
    faults += [f"unique: {name}" for kind, name in symbols if kind == "u"]
    print("\n".join(faults) or f"{len(names)} symbols of {len(CLASSES)} classes")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
