"""Compiles every public header alone: as C++17 and C++20, by each compiler given, with no include path but include/.

    check_headers.py INCLUDE COMPILER ...
"""

import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


def compile_alone(include, header, compiler, standard):
    """What the compiler says of a program that includes the header, twice."""
    name = header.relative_to(include).as_posix()
    program = f"#include <{name}>\n#include <{name}>\n"
    command = [compiler, f"-std={standard}", "-Wall", "-Wextra", "-Wconversion", "-Wshadow", "-Werror", "-fsyntax-only",
               "-I", str(include), "-x", "c++", "-"]
    result = subprocess.run(command, input=program, text=True, capture_output=True)
    return f"{name}, {compiler}, {standard}:\n{result.stderr}" if result.returncode else ""


def main():
    include, compilers = Path(sys.argv[1]), sys.argv[2:]
    jobs = [(include, header, compiler, standard) for header in sorted(include.rglob("*.h"))
            for compiler in compilers for standard in ("c++17", "c++20")]
    with ThreadPoolExecutor(2) as pool:
        faults = [fault for fault in pool.map(lambda job: compile_alone(*job), jobs) if fault]
    print("".join(faults) or f"{len(jobs)} programs compile")
    sys.exit(bool(faults) or len(jobs) < 100)


if __name__ == "__main__":
    main()
