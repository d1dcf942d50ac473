"""Every installed header compiles alone, without a warning, with each compiler.

    python3 check_headers.py INCLUDE_FOLDER COMPILER...
"""

import itertools
import os
import pathlib
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Werror"]
NEEDS_CXX20 = ("planner",)


def fault_of(folder, header, compiler):
    standard = "20" if header.startswith(NEEDS_CXX20) else "17"
    command = [compiler, f"-std=c++{standard}", "-fsyntax-only", *WARNINGS, f"-I{folder}", "-x", "c++", "-"]
    done = subprocess.run(command, input=f"#include <{header}>\n", capture_output=True, text=True)
    return f"{compiler}, C++{standard}, {header}:\n{done.stderr}" if done.returncode else None


def main():
    folder, *compilers = sys.argv[1:]
    headers = sorted(str(path.relative_to(folder)) for path in pathlib.Path(folder).rglob("*.h"))
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        cases = itertools.product([folder], headers, compilers)
        faults = [fault for fault in pool.map(lambda case: fault_of(*case), cases) if fault]
    print("\n".join(faults) or f"{len(headers)} headers")
    return 1 if faults or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
