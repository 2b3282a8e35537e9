"""Finds the checks of a C++ source: each condition, and each part of one that "&&" and "||" join.

It reads the text, not the language, and relies on how clang-format lays the code out: a function's brace stands alone on
its line, operators stand between spaces, template arguments do not.
"""

import re
import typing

OPENING = {"(": ")", "[": "]", "{": "}"}
CLOSING = {")": "(", "]": "[", "}": "{"}
NOT_TEXT = re.compile(r'//[^\n]*|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)*\'|/\*.*?\*/', re.DOTALL)
DECLARATION = re.compile(r"\s*(?:const )?(?:auto|int|bool)[ *&]+(?:const )?(\w+) = ")
COMPARISON = re.compile(r"\s(?:==|!=|<|>|<=|>=|&&|\|\|)\s")


class Site(typing.NamedTuple):
    """A place at which a condition can be given one fixed value."""

    line: int
    function: str
    condition: str
    value: str  # "true" or "false"
    # The text between the two offsets is the condition; a declaration is left whole, and what it declares is asked.
    start: int
    end: int
    declared: str | None = None

    @property
    def name(self):
        return f"{self.function}: {self.condition} -> {self.value}"

    def wrapping(self, number):
        """What stands before and behind the condition, so that the environment can choose the mutant."""
        if self.declared:
            return "", f"; karvelloMutant({number}) ? {self.value} : static_cast<bool>({self.declared})"
        return f"(karvelloMutant({number}) ? {self.value} : static_cast<bool>(", "))"


def blanked(source):
    """The source with spaces for comments and for what stands in quotes; every offset stays."""
    return NOT_TEXT.sub(lambda found: re.sub(r"[^\n]", " " if found[0][0] == "/" else "_", found[0]), source)


def end_of_group(text, start):
    """The offset of what closes the bracket at `start`."""
    depth = 0
    for offset in range(start, len(text)):
        if text[offset] in OPENING:
            depth += 1
        elif text[offset] in CLOSING:
            depth -= 1
            if depth == 0:
                return offset
    raise ValueError("a bracket without its partner")


def top_level(text, start, end):
    """The offsets between the two that lie in no bracket."""
    offset = start
    while offset < end:
        if text[offset] in OPENING:
            offset = end_of_group(text, offset)
        else:
            yield offset
        offset += 1


def trimmed(text, start, end):
    while start < end and text[start].isspace():
        start += 1
    while end > start and text[end - 1].isspace():
        end -= 1
    return start, end


def split(text, start, end, operator):
    parts = []
    for offset in top_level(text, start, end):
        if text.startswith(operator, offset):
            parts.append((start, offset))
            start = offset + len(operator)
    parts.append((start, end))
    return [trimmed(text, *part) for part in parts]


def parts_of(text, start, end):
    """The parts of a compound condition, each with the value that takes it out of the compound."""
    start, end = trimmed(text, start, end)
    for operator, neutral in (("||", "false"), ("&&", "true")):
        parts = split(text, start, end, operator)
        if len(parts) > 1:
            for part in parts:
                yield *part, neutral
                yield from parts_of(text, *part)
            return
    inner = start + 1 if text[start] == "!" else start
    if text[inner] == "(" and end_of_group(text, inner) == end - 1:
        yield from parts_of(text, inner + 1, end - 1)


def function_around(source, offset):
    """The name and the signature of the function whose body holds the offset."""
    bodies = [found for found in re.finditer(r"^( {0,8})\{$", source[:offset], re.MULTILINE)]
    for body in reversed(bodies):
        if source.find(f"\n{body[1]}}}", body.end()) > offset:
            signature = re.split(r"\n\s*\n|[;}]\s*\n|\n\s*(?:public|private):\s*\n", source[: body.start()])[-1].strip()
            signature = re.sub(r"^(?:///?[^\n]*\n\s*)*", "", signature)
            name = re.search(r"([\w:~]+)\(", signature)
            return (name[1] if name else "?"), signature
    return "?", ""


def start_of_ternary(text, question):
    """Where the condition before the question mark begins."""
    offset = question - 1
    depth = 0
    while offset > 0:
        if text[offset] in CLOSING:
            depth += 1
        elif text[offset] in OPENING:
            if depth == 0:
                return offset + 1
            depth -= 1
        elif depth == 0:
            if text[offset] in ";,?" or re.match(r"\s:\s", text[offset - 1: offset + 2]):
                return offset + 1
            if re.match(r"[\s|]=\s", text[offset - 1: offset + 2]) or text.startswith("return ", offset):
                return offset + (len("return") if text[offset] == "r" else 1)
        offset -= 1
    return 0


def conditions(text):
    """The offsets of every whole condition, and what it declares."""
    for found in re.finditer(r"\b(?:if|while) \(", text):
        start, end = found.end(), end_of_group(text, found.end() - 1)
        start, end = split(text, start, end, ";")[-1]
        declaration = DECLARATION.match(text, start, end)
        yield start, end, declaration[1] if declaration else None
    for found in re.finditer(r"\breturn\b|\bbool \w+ =", text):
        try:
            end = next(offset for offset in top_level(text, found.end(), len(text)) if text[offset] == ";")
        except (StopIteration, ValueError):
            continue
        outside = "".join(text[offset] for offset in top_level(text, found.end(), end))
        if COMPARISON.search(outside) and " ? " not in outside:
            yield *trimmed(text, found.end(), end), None
    for found in re.finditer(r"\s\?\s", text):
        yield *trimmed(text, start_of_ternary(text, found.start() + 1), found.start()), None


def checks_of(source):
    """Every site of a source, in the order of the text. What only the compiler computes is left out."""
    text = blanked(source)
    found = []

    def add(start, end, value, declared=None):
        function, signature = function_around(source, start)
        is_computed = not signature or "constexpr" in signature.split("(")[0]
        if not is_computed and source[start:end] not in ("true", "false"):
            line = source.count("\n", 0, start) + 1
            condition = re.sub(r"\s+", " ", source[start:end])
            found.append(Site(line, function, condition, value, start, end, declared))

    for start, end, declared in conditions(text):
        add(start, end, "false", declared)
        add(start, end, "true", declared)
        if not declared:
            for part_start, part_end, neutral in parts_of(text, start, end):
                add(part_start, part_end, neutral)
    return sorted(found, key=lambda site: (site.start, -site.end))
