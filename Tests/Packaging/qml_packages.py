"""Which Debian packages hold the QML modules that screens import."""

import functools
import pathlib
import re
import subprocess

# Modules of ours are inside the program.
OWN = "Karvello."


def imported_modules(text):
    found = re.findall(r"^\s*import\s+([A-Z][\w.]*)", text, re.MULTILINE)
    return {module for module in found if not module.startswith(OWN)}


@functools.cache
def package_of(folder):
    answer = subprocess.run(["dpkg-query", "-S", folder / "qmldir"], capture_output=True, text=True)
    return answer.stdout.split(":")[0] if answer.returncode == 0 else None


def modules_behind(folder):
    """What a module itself imports; without what it could do without."""
    return set(re.findall(r"^(?:import|depends)\s+([\w.]+)", (folder / "qmldir").read_text(), re.MULTILINE))


def missing_packages(modules, modules_folder, packages):
    """For each module, in whatever depth, that none of the packages brings: why."""
    pending = sorted(modules)
    seen = set()
    while pending:
        module = pending.pop()
        if module in seen:
            continue
        seen.add(module)
        folder = pathlib.Path(modules_folder, *module.split("."))
        package = package_of(folder)
        if package is None:
            yield f"{module} is in no installed package: name its package in scripts/packages.txt, under runtime"
            continue
        if package not in packages:
            yield f"{module} is in {package}: name it in scripts/packages.txt, under runtime"
        pending += modules_behind(folder)
