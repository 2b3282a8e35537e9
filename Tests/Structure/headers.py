"""Every header compiles alone."""

import concurrent.futures
import os
import re
import shlex
import subprocess


def proven_by_the_build(files):
    """The headers that a source file includes before anything else: the build compiles those alone."""
    proven = set()
    for file in files:
        first = re.search(r'^\s*#\s*include\s*["<]([^">]+)[">]', file.text, re.MULTILINE)
        if file.path.endswith((".cpp", ".mm")) and first:
            proven.add(first[1])
    return proven


def to_compile(files):
    proven = proven_by_the_build(files)
    return [file.path for file in files if file.path.endswith(".h") and file.path not in proven]


def offences(root, headers, compiler, flags):
    def compile_alone(header):
        result = subprocess.run(
            [*shlex.split(compiler), "-std=c++23", "-fsyntax-only", "-I", str(root), *flags, "-x", "c++", "-"],
            input=f'#include "{header}"\n', capture_output=True, text=True, check=False)
        return f"{header} does not compile alone:\n{result.stderr}" if result.returncode != 0 else None

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        yield from filter(None, pool.map(compile_alone, headers))
