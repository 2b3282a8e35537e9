"""Finds the source files of the project and reads them without comments and string literals."""

import os
import pathlib
import re

CODE_FOLDERS = (
    "Platform", "PlatformDesktop", "CleanerCore", "KarvelloUI", "KarvelloCLI", "KarvelloMac", "Tests", "Benchmarks")
# What is shipped: everything but tests and benchmarks.
PRODUCT_FOLDERS = CODE_FOLDERS[:-2]

_TOKEN = re.compile(
    r"""//[^\n]*"""
    r"""|/\*.*?\*/"""
    r"""|R"(?P<mark>[^\s()\\]{0,16})\(.*?\)(?P=mark)\""""
    r"""|"(?:\\.|[^"\\\n])*\""""
    r"""|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'""",
    re.DOTALL | re.VERBOSE)


def _blank(text):
    """As many lines as `text`, and nothing on them."""
    return "\n" * text.count("\n")


def without_comments(text):
    return _TOKEN.sub(lambda match: _blank(match[0]) + " " if match[0].startswith("/") else match[0], text)


def without_comments_and_literals(text):
    return _TOKEN.sub(lambda match: _blank(match[0]) + (" " if match[0].startswith("/") else '""'), text)


class SourceFile:
    """One file: `path` counts from the root of the source tree, with slashes."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.code = without_comments_and_literals(text)

    @property
    def layer(self):
        return self.path.split("/")[0]

    @property
    def is_product(self):
        return self.layer in PRODUCT_FOLDERS

    def line_of(self, offset):
        return self.code.count("\n", 0, offset) + 1


def walk(root, folders, suffixes):
    for folder in folders:
        for parent, subfolders, names in os.walk(os.path.join(root, folder)):
            subfolders[:] = sorted(name for name in subfolders if not name.startswith((".", "__")))
            for name in sorted(names):
                if name.endswith(suffixes):
                    path = pathlib.Path(parent, name)
                    yield path.relative_to(root).as_posix(), path


def code_files(root):
    return [SourceFile(name, path.read_text(encoding="utf-8", errors="replace")) for name, path in
            walk(root, CODE_FOLDERS, (".h", ".cpp", ".mm"))]


def text_files(root):
    """Every file that people write, code or not, as pairs of a path and its text."""
    found = [(name, path) for name, path in walk(
        root, CODE_FOLDERS + ("cmake", "scripts", "docs", "Packaging"),
        (".h", ".cpp", ".mm", ".py", ".sh", ".qml", ".cmake", ".txt", ".md", ".json"))]
    for folder in (root, root / "scripts", root / "Benchmarks", root / ".ci"):
        found += [(path.relative_to(root).as_posix(), path) for path in sorted(folder.iterdir())
                  if path.is_file() and (not path.suffix or folder == root) and not path.name.startswith(".git")]
    return [(name, path.read_text(encoding="utf-8", errors="replace")) for name, path in dict(found).items()]
